#include "scene/Field3D.h"

#include <gtest/gtest.h>

namespace tolvane {

namespace {

class Place final : public Element3D {
public:
    using Element3D::Element3D;
    void Draw(int, bool, bool, bool, const Vertex*, const Vertex*) override {}
};

TEST(Field3D, KnowsItsPlaceAndRemembersItsHighlight) {
    Field3D field(3, 5);
    EXPECT_EQ(field.GetColumn(), 3u);
    EXPECT_EQ(field.GetRow(), 5u);
    EXPECT_EQ(field.GetHighlight(), 0);

    for (const int code : {1, 2, 3, 0}) {
        field.SetHighlight(code);
        EXPECT_EQ(field.GetHighlight(), code);
    }
}

TEST(Field3D, DrawsAndUpdatesNothingByItself) {
    Field3D field(0, 0);
    field.SetHighlight(1);
    field.Draw(renderVertexBuffer, true, false, true, nullptr, nullptr);
    field.Update(renderVertexBuffer, 1.0f);
    EXPECT_EQ(field.GetHighlight(), 1);
    EXPECT_FALSE(field.IsFinished());
}

TEST(Element3D, StandsOnColumnAndRowZeroByDefault) {
    const Place place;
    EXPECT_EQ(place.GetColumn(), 0u);
    EXPECT_EQ(place.GetRow(), 0u);
}

}  // namespace

}  // namespace tolvane

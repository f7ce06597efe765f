#include "assets/Vertex.h"

#include <gmock/gmock.h>

#include <cmath>

namespace tolvane {

static void PrintTo(const Vertex& vertex, std::ostream* out) {
    *out << '(' << vertex.x << ", " << vertex.y << ", " << vertex.z << ')';
}

namespace {

MATCHER_P3(IsVertex, x, y, z, "") {
    return arg.x == static_cast<float>(x) && arg.y == static_cast<float>(y) && arg.z == static_cast<float>(z);
}

TEST(Vertex, IsAPlaceAndAWayToGo) {
    const Vertex from = MakeVertex(1, 2, 3);
    const Vertex to = MakeVertex(4, 6, 3);
    const Vertex way = Subtract(to, from);
    EXPECT_THAT(way, IsVertex(3, 4, 0));
    EXPECT_EQ(Length(way), 5.0f);
    EXPECT_THAT(Add(from, Scale(way, 0.5f)), IsVertex(2.5, 4, 3));
}

TEST(Vertex, StandsAtTheOriginByDefault) {
    EXPECT_THAT(Vertex(), IsVertex(0, 0, 0));
}

TEST(Vertex, CombinesComponentByComponent) {
    const Vertex a = MakeVertex(1, -2, 4);
    const Vertex b = MakeVertex(8, 16, -32);
    EXPECT_THAT(Add(a, b), IsVertex(9, 14, -28));
    EXPECT_THAT(Subtract(a, b), IsVertex(-7, -18, 36));
    EXPECT_THAT(Scale(a, -3), IsVertex(-3, 6, -12));
    EXPECT_THAT(Divide(b, 4), IsVertex(2, 4, -8));
}

TEST(Vertex, HasDotAndCrossProduct) {
    EXPECT_EQ(Dot(MakeVertex(1, 2, 3), MakeVertex(4, -5, 6)), 12.0f);
    EXPECT_THAT(Cross(MakeVertex(1, 2, 3), MakeVertex(4, -5, 6)), IsVertex(27, 6, -13));
    EXPECT_THAT(Cross(MakeVertex(1, 0, 0), MakeVertex(0, 1, 0)), IsVertex(0, 0, 1));
}

TEST(Vertex, NormalizedHasLengthOne) {
    EXPECT_THAT(Normalized(MakeVertex(0, -8, 0)), IsVertex(0, -1, 0));
    EXPECT_FLOAT_EQ(Length(Normalized(MakeVertex(1, 2, 3))), 1.0f);
}

TEST(Vertex, NormalizedOfLengthZeroIsNotANumber) {
    const Vertex none = Normalized(MakeVertex(0, 0, 0));
    EXPECT_TRUE(std::isnan(none.x));
    EXPECT_TRUE(std::isnan(none.y));
    EXPECT_TRUE(std::isnan(none.z));
}

TEST(Vertex, IsEqualToFiveDecimals) {
    struct Case {
        Vertex a;
        Vertex b;
        bool equal;
    };
    const Case cases[] = {
        {{1, 2, 3}, {1, 2, 3}, true},          {{0.000004f, 0, 0}, {-0.000004f, 0, 0}, true},
        {{0.000006f, 0, 0}, {0, 0, 0}, false}, {{0, 0.00002f, 0}, {0, 0.00001f, 0}, false},
        {{0, 0, 1.5f}, {0, 0, -1.5f}, false},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(Equal(row.a, row.b), row.equal) << ::testing::PrintToString(row.a);
        EXPECT_EQ(NotEqual(row.a, row.b), !row.equal) << ::testing::PrintToString(row.a);
    }
}

}  // namespace
}  // namespace tolvane

#include "scene/BoardSelectionGrid.h"

#include <gmock/gmock.h>

#include <stdexcept>

#include "assets/Gl.h"
#include "scene/FieldCentre.h"
#include "scene/Stage.h"

namespace tolvane {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

using test::IsColor;
using test::Rgb;

constexpr Rgb black{0, 0, 0};
constexpr Rgb darkGreen{0, 128, 0};
constexpr Rgb lightGreen{0, 204, 0};

class BoardSelectionGridTest : public test::Stage {
protected:
    void SetUp() override {
        Stage::SetUp();
        LookDown(16.0f);
    }

    void Draw(bool useDisplayLists, bool blending) {
        glPushMatrix();
        grid.Draw(renderVertexBuffer, useDisplayLists, false, blending, nullptr, nullptr);
        glPopMatrix();
    }

    std::vector<Hit> PickAt(const Vertex& point, bool useDisplayLists = true) {
        return Pick(PixelOf(point),
                    [&] { grid.Draw(renderVertexBuffer, useDisplayLists, true, false, nullptr, nullptr); });
    }

    // A point of a field by the share of its width and depth, from its corner at low x and z.
    static Vertex PointOf(int column, int row, float shareX, float shareZ) {
        const Vertex centre = FieldCentre(column, row);
        return {centre.x + (shareX - 0.5f) * fieldSize, 0.3f, centre.z + (shareZ - 0.5f) * fieldSize};
    }

    BoardSelectionGrid grid{3.5f, 3.5f};
};

TEST_F(BoardSelectionGridTest, MarksASelectedFieldAndItsTargets) {
    grid.GetFieldAt(4, 1)->SetHighlight(1);
    grid.GetFieldAt(4, 2)->SetHighlight(2);
    grid.GetField(4 + 3 * 8)->SetHighlight(3);

    Draw(true, false);

    EXPECT_THAT(ColorAt(PointOf(4, 1, 0.075f, 0.5f)), IsColor(Rgb{255, 0, 0}));
    EXPECT_THAT(ColorAt(PointOf(4, 2, 0.075f, 0.5f)), IsColor(Rgb{0, 255, 0}));
    EXPECT_THAT(ColorAt(PointOf(4, 3, 0.075f, 0.5f)), IsColor(Rgb{0, 0, 255}));
    EXPECT_THAT(ColorAt(PointOf(4, 4, 0.075f, 0.5f)), IsColor(black));
}

TEST_F(BoardSelectionGridTest, HoldsItsFieldsRowByRow) {
    for (unsigned int row = 0; row < 8; ++row) {
        for (unsigned int column = 0; column < 8; ++column) {
            Field3D* field = grid.GetField(row * 8 + column);
            EXPECT_EQ(field->GetColumn(), column);
            EXPECT_EQ(field->GetRow(), row);
            EXPECT_EQ(field->GetHighlight(), 0);
            EXPECT_EQ(grid.GetFieldAt(column, row), field);
        }
    }
    EXPECT_THROW(grid.GetField(64), std::out_of_range);
}

TEST_F(BoardSelectionGridTest, KnowsTheLowerCornersOfItsOutermostFields) {
    const BoardSelectionGrid oblong(2.0f, 5.0f);
    EXPECT_FLOAT_EQ(grid.minX, -14.0f);
    EXPECT_FLOAT_EQ(grid.maxX, 10.5f);
    EXPECT_FLOAT_EQ(grid.minZ, -14.0f);
    EXPECT_FLOAT_EQ(grid.maxZ, 10.5f);
    EXPECT_FLOAT_EQ(oblong.minX, -8.0f);
    EXPECT_FLOAT_EQ(oblong.maxX, 6.0f);
    EXPECT_FLOAT_EQ(oblong.minZ, -20.0f);
    EXPECT_FLOAT_EQ(oblong.maxZ, 15.0f);
}

class BoardSelectionGridLists : public BoardSelectionGridTest, public ::testing::WithParamInterface<bool> {};

INSTANTIATE_TEST_SUITE_P(StoredAndAnew, BoardSelectionGridLists, ::testing::Bool());

TEST_P(BoardSelectionGridLists, ShowsAChequerWithADarkFieldAtWhitesLeft) {
    Draw(GetParam(), false);
    for (int row = 0; row < 8; ++row)
        for (int column = 0; column < 8; ++column)
            EXPECT_THAT(ColorAt(FieldCentre(column, row)),
                        IsColor((row + column) % 2 == 0 ? darkGreen : lightGreen))
                << column << ", " << row;
}

TEST_P(BoardSelectionGridLists, LeavesATenthOfAFieldFreeAllRound) {
    Draw(GetParam(), false);
    for (const int end : {0, 7}) {
        for (const float near : {0.11f, 0.89f}) {
            EXPECT_THAT(ColorAt(PointOf(end, end, near, 0.5f)), IsColor(darkGreen));
            EXPECT_THAT(ColorAt(PointOf(end, end, 0.5f, near)), IsColor(darkGreen));
        }
        for (const float outside : {0.09f, 0.91f}) {
            EXPECT_THAT(ColorAt(PointOf(end, end, outside, 0.5f)), IsColor(black));
            EXPECT_THAT(ColorAt(PointOf(end, end, 0.5f, outside)), IsColor(black));
        }
    }
}

TEST_P(BoardSelectionGridLists, FramesAMarkedFieldInTheOuterHalfOfItsMargin) {
    grid.GetFieldAt(0, 0)->SetHighlight(1);
    Draw(GetParam(), false);
    constexpr Rgb red{255, 0, 0};
    for (const float within : {0.06f, 0.09f, 0.91f, 0.94f}) {
        for (const float along : {0.06f, 0.3f, 0.5f, 0.7f, 0.94f}) {
            EXPECT_THAT(ColorAt(PointOf(0, 0, within, along)), IsColor(red)) << within << ", " << along;
            EXPECT_THAT(ColorAt(PointOf(0, 0, along, within)), IsColor(red)) << along << ", " << within;
        }
    }
    for (const float outside : {0.03f, 0.97f}) {
        EXPECT_THAT(ColorAt(PointOf(0, 0, outside, 0.5f)), IsColor(black));
        EXPECT_THAT(ColorAt(PointOf(0, 0, 0.5f, outside)), IsColor(black));
    }
    EXPECT_THAT(ColorAt(PointOf(0, 0, 0.5f, 0.5f)), IsColor(darkGreen));
}

TEST_P(BoardSelectionGridLists, DrawsTheGreenAloneWithoutAHighlight) {
    Draw(GetParam(), false);
    const test::Picture plain = test::ReadPicture();
    grid.GetFieldAt(2, 2)->SetHighlight(2);
    grid.GetFieldAt(2, 2)->SetHighlight(0);
    Clear();
    Draw(GetParam(), false);
    EXPECT_EQ(test::ReadPicture().CountDifferences(plain, 0), 0);
    EXPECT_THAT(ColorAt(PointOf(2, 2, 0.075f, 0.5f)), IsColor(black));
}

TEST_P(BoardSelectionGridLists, FramesInBlackForACodeWithoutAColour) {
    grid.GetFieldAt(1, 1)->SetHighlight(4);
    grid.GetFieldAt(2, 2)->SetHighlight(99);
    grid.GetFieldAt(3, 3)->SetHighlight(-1);
    Clear(1.0f, 1.0f, 1.0f);
    Draw(GetParam(), false);
    for (const int place : {1, 2, 3})
        EXPECT_THAT(ColorAt(PointOf(place, place, 0.075f, 0.5f)), IsColor(black)) << place;
}

TEST_P(BoardSelectionGridLists, BlendsFramesStrongerWhenDrawnAnew) {
    grid.GetFieldAt(0, 0)->SetHighlight(1);
    Draw(GetParam(), true);
    EXPECT_NEAR(ColorAt(PointOf(0, 0, 0.075f, 0.5f))[0], GetParam() ? 128 : 153, 3);
    EXPECT_NEAR(ColorAt(PointOf(0, 0, 0.5f, 0.5f))[1], 0.3 * 0.5 * 255, 3);
    EXPECT_NEAR(ColorAt(PointOf(1, 0, 0.5f, 0.5f))[1], 0.3 * 0.8 * 255, 3);
}

TEST_P(BoardSelectionGridLists, NamesEveryFieldInTheSelectionPass) {
    for (int row = 0; row < 8; ++row) {
        for (int column = 0; column < 8; ++column) {
            const auto hits = PickAt(FieldCentre(column, row), GetParam());
            ASSERT_THAT(hits, SizeIs(1));
            EXPECT_THAT(hits[0].names,
                        ElementsAre(baseName, 100u + static_cast<unsigned int>(row * 8 + column)));
        }
    }
}

TEST_P(BoardSelectionGridLists, CanBePickedUpToTheEdgeOfAField) {
    for (const float share : {0.04f, 0.96f}) {
        EXPECT_THAT(PickAt(PointOf(7, 7, share, 0.5f), GetParam()), SizeIs(1));
        EXPECT_THAT(PickAt(PointOf(7, 7, 0.5f, share), GetParam()), SizeIs(1));
    }
    EXPECT_THAT(PickAt({14.3f, 0.3f, 0.0f}, GetParam()), IsEmpty());
}

TEST_F(BoardSelectionGridTest, CallsTheFieldAtColumnSevenRowSeven163) {
    const auto hits = PickAt(FieldCentre(7, 7));
    ASSERT_THAT(hits, SizeIs(1));
    ASSERT_EQ(hits[0].names.back(), 163u);
    EXPECT_EQ(grid.GetField(163 - 100)->GetColumn(), 7u);
    EXPECT_EQ(grid.GetField(163 - 100)->GetRow(), 7u);
}

TEST_F(BoardSelectionGridTest, NeitherShowsNorCanBePickedWhileHidden) {
    grid.GetFieldAt(3, 3)->SetHighlight(1);
    const test::Picture empty = test::ReadPicture();
    grid.SetVisible(false);
    Draw(true, true);
    EXPECT_EQ(test::ReadPicture().CountDifferences(empty, 0), 0);
    EXPECT_THAT(PickAt(FieldCentre(3, 3)), IsEmpty());

    grid.SetVisible(true);
    Draw(true, true);
    EXPECT_GT(test::ReadPicture().CountDifferences(empty, 0), 0);
    EXPECT_THAT(PickAt(FieldCentre(3, 3)), SizeIs(1));
}

TEST_F(BoardSelectionGridTest, LiesThreeTenthsAboveTheBoard) {
    const auto hits = PickAt(FieldCentre(3, 3));
    ASSERT_THAT(hits, SizeIs(1));
    // The eye is 100 above the board and sees 200 deep.
    EXPECT_NEAR(hits[0].nearest * 200.0, 99.7, 0.01);
    EXPECT_NEAR(hits[0].farthest * 200.0, 99.7, 0.01);
}

TEST_F(BoardSelectionGridTest, MovesWithItsPosition) {
    grid.Translate(1.75f, 0.0f, 0.0f);
    Draw(true, false);
    EXPECT_THAT(ColorAt(PointOf(0, 0, 0.5f, 0.5f)), IsColor(black));
    EXPECT_THAT(ColorAt(PointOf(0, 0, 1.0f, 0.5f)), IsColor(darkGreen));
}

TEST_F(BoardSelectionGridTest, HidesNothingThatIsDrawnBelowItLater) {
    Draw(true, true);
    float depth = 0.0f;
    const Pixel pixel = PixelOf(FieldCentre(3, 3));
    glReadPixels(pixel.x, pixel.y, 1, 1, GL_DEPTH_COMPONENT, GL_FLOAT, &depth);
    EXPECT_FLOAT_EQ(depth, 1.0f);
}

TEST_F(BoardSelectionGridTest, LeavesTexturesLightAndDepthOnAndBlendingOff) {
    for (const bool blending : {false, true}) {
        glEnable(GL_BLEND);
        Draw(true, blending);
        EXPECT_TRUE(glIsEnabled(GL_TEXTURE_2D));
        EXPECT_TRUE(glIsEnabled(GL_LIGHTING));
        EXPECT_FALSE(glIsEnabled(GL_BLEND));
        GLboolean writesDepth = GL_FALSE;
        glGetBooleanv(GL_DEPTH_WRITEMASK, &writesDepth);
        EXPECT_TRUE(writesDepth);
    }
}

TEST_F(BoardSelectionGridTest, CannotBeSeenFromBelow) {
    LookAlong({0.0f, 1.0f, 0.0f}, {0.0f, 0.0f, -1.0f});
    glTranslatef(0.0f, 10.0f, 0.0f);
    Draw(true, false);
    EXPECT_THAT(ColorAt(FieldCentre(3, 3)), IsColor(black));
}

}  // namespace

}  // namespace tolvane

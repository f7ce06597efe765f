#include "figures/Knight3D.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "figures/MixerLog.h"
#include "figures/Troupe.h"

namespace tolvane::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr float slice = 0.001f;

class Knight3DTest : public testing::Test {
protected:
    Troupe troupe;
};

}  // namespace

TEST_F(Knight3DTest, RisesFliesAndDescends) {
    Knight3D& knight = troupe.PlaceKnight(Player::White, 1, 0);
    knight.PlayAnimationList(&knight.runList);
    float rising = 0.0f;
    while (!knight.Rise(slice))
        rising += slice;
    EXPECT_NEAR(rising, 1.91f, 0.01f);
    EXPECT_EQ(knight.GetPosition()->y, 2.7f);

    knight.SetTarget(2, 2, fieldWidth);
    float flying = slice;
    while (!knight.Walk(slice))
        flying += slice;
    EXPECT_NEAR(flying, 3.7f, 0.02f);
    EXPECT_EQ(knight.GetColumn(), 2u);
    EXPECT_EQ(knight.GetRow(), 2u);

    float descending = 0.0f;
    while (!knight.Descend(slice))
        descending += slice;
    EXPECT_NEAR(descending, 3.82f, 0.01f);
    EXPECT_TRUE(Equal(*knight.GetPosition(), FieldPlace(2, 2)));
}

TEST_F(Knight3DTest, FliesToAllEightFields) {
    struct Jump {
        int column;
        int row;
    };
    constexpr Jump jumps[]{{1, 2}, {2, 1}, {2, -1}, {1, -2}, {-1, -2}, {-2, -1}, {-2, 1}, {-1, 2}};
    for (const Jump jump : jumps) {
        Knight3D& knight = troupe.PlaceKnight(Player::Black, 4, 4);
        knight.SetTarget(4 + jump.column, 4 + jump.row, fieldWidth);
        int steps = 0;
        while (!knight.Walk(slice) && steps < 10000)
            ++steps;
        EXPECT_TRUE(Equal(*knight.GetPosition(), FieldPlace(4 + jump.column, 4 + jump.row)));
        EXPECT_EQ(knight.GetColumn(), static_cast<unsigned int>(4 + jump.column));
        EXPECT_EQ(knight.GetRow(), static_cast<unsigned int>(4 + jump.row));
    }
}

TEST_F(Knight3DTest, FliesTwiceAsFastAlongTheLongerWay) {
    Knight3D& knight = troupe.PlaceKnight(Player::White, 4, 4);
    knight.SetTarget(2, 5, fieldWidth);
    knight.Walk(1.0f);
    EXPECT_TRUE(Equal(*knight.GetPosition(), Add(FieldPlace(4, 4), {-1.8856362f, 0.0f, -0.9428181f})));
}

TEST_F(Knight3DTest, FliesPastItsTargetOnALongStep) {
    Knight3D& knight = troupe.PlaceKnight(Player::White, 4, 4);
    knight.SetTarget(2, 5, fieldWidth);
    EXPECT_FALSE(knight.Walk(5.0f));
    EXPECT_FALSE(knight.Walk(1.0f));
}

TEST_F(Knight3DTest, FliesWithoutSoundAndKeepsItsClip) {
    Knight3D& knight = troupe.PlaceKnight(Player::White, 4, 4);
    knight.PlayAnimationList(&knight.runList);
    knight.SetTarget(5, 6, fieldWidth);
    while (!knight.Walk(slice)) {
    }
    EXPECT_THAT(TakeCues(troupe.Sounds()), IsEmpty());
    EXPECT_EQ(troupe.ModelOf(knight).GetAnimationName(), "run_start");
}

TEST_F(Knight3DTest, GoesOnToItsNextClipWhenItIsDown) {
    Knight3D& knight = troupe.PlaceKnight(Player::White, 4, 4);
    knight.PlayAnimationList(&knight.runList);
    troupe.ModelOf(knight).NextAnimation();
    knight.GetPosition()->y = 0.01f;
    EXPECT_FALSE(knight.Descend(1.0f));
    EXPECT_EQ(troupe.ModelOf(knight).GetAnimationName(), "run");
    EXPECT_TRUE(knight.Descend(1.0f));
    EXPECT_EQ(knight.GetPosition()->y, 0.0f);
    EXPECT_EQ(troupe.ModelOf(knight).GetAnimationName(), "run_end");
}

TEST_F(Knight3DTest, HasASoundForOpeningAndClosingItsJets) {
    troupe.PlaceKnight(Player::White, 1, 0).PlayStartEndSound();
    EXPECT_THAT(TakeCues(troupe.Sounds()), ElementsAre(Played("media/knightStartEnd.wav")));
}

}  // namespace tolvane::test

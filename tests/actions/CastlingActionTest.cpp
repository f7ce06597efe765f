#include "actions/CastlingAction.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>

#include "actions/ActionFactory.h"
#include "actions/Scene.h"

namespace tolvane::test {

namespace {

struct CastlingCase {
    Player player;
    int rookColumn;
    int kingGoal;
    int rookGoal;
};

constexpr std::array castlings{CastlingCase{Player::White, 7, 6, 5}, CastlingCase{Player::White, 0, 2, 3},
                               CastlingCase{Player::Black, 7, 6, 5}, CastlingCase{Player::Black, 0, 2, 3}};

class CastlingActionTest : public testing::Test {
protected:
    struct Pair {
        ChessFigure3D& king;
        ChessFigure3D& rook;
    };

    static int HomeRow(Player player) { return player == Player::White ? 0 : 7; }

    Pair Castle(const CastlingCase& castling) {
        const int row = HomeRow(castling.player);
        ChessFigure3D& king = troupe.Place(castling.player, FigureType::King, 4, row);
        ChessFigure3D& rook = troupe.Place(castling.player, FigureType::Rook, castling.rookColumn, row);
        king.SetAction(ActionFactory().CreateCastlingAction(&king, &rook, fieldWidth));
        return {king, rook};
    }

    Troupe troupe;
};

}  // namespace

TEST_F(CastlingActionTest, EndsWithTheRookBesideTheKingForBothSidesAndWingsAtEveryPace) {
    for (const CastlingCase& castling : castlings)
        for (const Pace& pace : AllPaces()) {
            SCOPED_TRACE(testing::Message()
                         << static_cast<int>(castling.player) << " with the rook of column "
                         << castling.rookColumn << " at " << pace);
            const auto [king, rook] = Castle(castling);
            Scene scene(troupe, king, &rook, pace);
            int outmostRow = HomeRow(castling.player);
            scene.watch = [&rook = rook, &outmostRow, &castling] {
                EXPECT_FALSE(rook.IsFinished());
                const int row = static_cast<int>(rook.GetRow());
                outmostRow =
                    castling.player == Player::White ? std::min(outmostRow, row) : std::max(outmostRow, row);
            };
            const Outcome outcome = scene.Play();
            EXPECT_EQ(outcome.endings, 1);
            EXPECT_EQ(outmostRow, castling.player == Player::White ? -1 : 8);
            const float heading = castling.player == Player::White ? 0.0f : 180.0f;
            ExpectAtRest(king, castling.kingGoal, HomeRow(castling.player), heading);
            ExpectAtRest(rook, castling.rookGoal, HomeRow(castling.player), heading);
            EXPECT_EQ(troupe.ModelOf(king).GetAnimationName(), "stand");
            EXPECT_EQ(troupe.ModelOf(rook).GetAnimationName(), "stand");

            std::vector<std::string> cues{"kingMove", "rookMove",  "~rookMove", "~kingMove",
                                          "rookMove", "~rookMove", "kingMove",  "rookMove"};
            // Two fields on the queen's side take the rook longer than one field takes the king.
            if (castling.rookColumn == 7)
                cues.insert(cues.end(), {"~rookMove", "~kingMove"});
            else
                cues.insert(cues.end(), {"~kingMove", "~rookMove"});
            cues.insert(cues.end(), {"rookMove", "~rookMove"});
            EXPECT_EQ(outcome.cues, cues);
        }
}

TEST_F(CastlingActionTest, TakesTheRookRoundBehindTheKing) {
    const auto [king, rook] = Castle(castlings[0]);
    Scene scene(troupe, king, &rook, {.frameTime = 1.0f / 60.0f});

    const auto bothOn = [&king = king, &rook = rook](int kingColumn, int rookColumn, int rookRow) {
        return static_cast<int>(king.GetColumn()) == kingColumn &&
               static_cast<int>(rook.GetColumn()) == rookColumn && static_cast<int>(rook.GetRow()) == rookRow;
    };
    ASSERT_TRUE(
        scene.PlayUntil([&] { return king.GetRotationY() == -90.0f && rook.GetRotationY() == 90.0f; }));
    EXPECT_TRUE(Equal(*king.GetPosition(), FieldPlace(4, 0)));
    ASSERT_TRUE(scene.PlayUntil([&] { return bothOn(5, 6, 0); }));
    EXPECT_EQ(rook.GetRotationY(), 90.0f);
    ASSERT_TRUE(scene.PlayUntil([&] { return rook.GetRotationY() == 180.0f; }));
    ASSERT_TRUE(scene.PlayUntil([&] { return bothOn(5, 6, -1); }));
    EXPECT_TRUE(Equal(*rook.GetPosition(), FieldPlace(6, -1)));
    ASSERT_TRUE(scene.PlayUntil([&] { return rook.GetRotationY() == 90.0f; }));
    ASSERT_TRUE(scene.PlayUntil([&] { return bothOn(6, 5, -1); }));
    EXPECT_TRUE(Equal(*rook.GetPosition(), FieldPlace(5, -1)));
    ASSERT_TRUE(scene.PlayUntil([&] { return king.GetRotationY() == 0.0f && rook.GetRotationY() == 0.0f; }));
    EXPECT_EQ(scene.Play().endings, 1);
    EXPECT_TRUE(bothOn(6, 5, 0));
}

}  // namespace tolvane::test

#include "actions/Pawn_EnPassant.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "actions/ActionFactory.h"
#include "actions/Scene.h"

namespace tolvane::test {

namespace {

class Pawn_EnPassantTest : public testing::Test {
protected:
    struct Pair {
        ChessFigure3D& attacker;
        ChessFigure3D& victim;
    };

    Pair Meet(Player player, int side) {
        const Player other = player == Player::White ? Player::Black : Player::White;
        const int row = player == Player::White ? 4 : 3;
        ChessFigure3D& attacker = troupe.Place(player, FigureType::Pawn, 4, row);
        ChessFigure3D& victim = troupe.Place(other, FigureType::Pawn, 4 + side, row);
        attacker.SetAction(ActionFactory().CreateAttackAction(&attacker, &victim, fieldWidth));
        return {attacker, victim};
    }

    Troupe troupe;
};

}  // namespace

TEST_F(Pawn_EnPassantTest, EndsDiagonallyBehindTheVictimForBothSidesAtEveryPace) {
    for (const Pace& pace : AllPaces())
        for (const Player player : {Player::White, Player::Black})
            for (const int side : {-1, 1}) {
                SCOPED_TRACE(testing::Message()
                             << static_cast<int>(player) << " to " << side << " at " << pace);
                const auto [attacker, victim] = Meet(player, side);
                const Outcome outcome = Scene(troupe, attacker, &victim, pace).Play();
                EXPECT_EQ(outcome.endings, 1);
                EXPECT_EQ(outcome.secondHits, 1);
                EXPECT_THAT(outcome.cues,
                            testing::ElementsAre("pawnshot2", "pawnshot2", "dying", "pawnMove", "~pawnMove"));
                if (player == Player::White) {
                    ExpectAtRest(attacker, 4 + side, 5, 0.0f);
                    ExpectGone(victim, 4 + side, 4);
                } else {
                    ExpectAtRest(attacker, 4 + side, 2, 180.0f);
                    ExpectGone(victim, 4 + side, 3);
                }
            }
}

TEST_F(Pawn_EnPassantTest, FacesTheVictimThenTheDiagonal) {
    struct Case {
        Player player;
        int side;
        float beside;
        float victim;
        float diagonal;
    };
    constexpr Case cases[]{{Player::White, 1, -90, 90, -45},
                           {Player::White, -1, 90, 270, 45},
                           {Player::Black, 1, 270, 90, 225},
                           {Player::Black, -1, 90, -90, 135}};
    for (const Case& each : cases) {
        const auto [attacker, victim] = Meet(each.player, each.side);
        Scene scene(troupe, attacker, &victim, {.frameTime = 1.0f / 60.0f});
        ASSERT_TRUE(scene.PlayUntil([&attacker = attacker] { return attacker.attackActive; }));
        EXPECT_EQ(attacker.GetRotationY(), each.beside);
        EXPECT_EQ(victim.GetRotationY(), each.victim);
        ASSERT_TRUE(scene.PlayUntil([&victim = victim] { return !victim.active; }));
        EXPECT_EQ(attacker.GetRotationY(), each.beside);
        const Vertex before = *attacker.GetPosition();
        ASSERT_TRUE(scene.PlayUntil(
            [&attacker = attacker, before] { return NotEqual(*attacker.GetPosition(), before); }));
        EXPECT_EQ(attacker.GetRotationY(), each.diagonal);
        scene.Play();
    }
}

}  // namespace tolvane::test

#include "actions/Knight_VS_X.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "actions/ActionFactory.h"
#include "actions/Scene.h"

namespace tolvane::test {

namespace {

struct VictimCase {
    FigureType type;
    std::vector<std::string> death;
    int column;
    int row;
};

const std::array victims{VictimCase{FigureType::Pawn, {"dying"}, 5, 6},
                         VictimCase{FigureType::Rook, {"rookdeath", "rookdeath1"}, 6, 3},
                         VictimCase{FigureType::Knight, {"explosionSmall"}, 3, 2},
                         VictimCase{FigureType::Bishop, {"bishopDeath"}, 2, 5},
                         VictimCase{FigureType::Queen, {"explosionSmall"}, 3, 6}};

class Knight_VS_XTest : public testing::Test {
protected:
    struct Pair {
        ChessFigure3D& knight;
        ChessFigure3D& victim;
    };

    Pair Meet(Player player, FigureType victimType, int column, int row) {
        const Player other = player == Player::White ? Player::Black : Player::White;
        ChessFigure3D& knight = troupe.Place(player, FigureType::Knight, 4, 4);
        ChessFigure3D& victim = troupe.Place(other, victimType, column, row);
        knight.SetAction(ActionFactory().CreateAttackAction(&knight, &victim, fieldWidth));
        return {knight, victim};
    }

    Troupe troupe;
};

}  // namespace

TEST_F(Knight_VS_XTest, EndsWithEveryVictimAtEveryPaceForBothSides) {
    std::size_t count = 0;
    for (const VictimCase& each : victims)
        for (const Pace& pace : AllPaces()) {
            const Player player = count++ % 2 ? Player::Black : Player::White;
            SCOPED_TRACE(testing::Message() << static_cast<int>(each.type) << " at " << pace);
            const float heading = player == Player::White ? 0.0f : 180.0f;
            const auto [knight, victim] = Meet(player, each.type, each.column, each.row);
            Scene scene(troupe, knight, &victim, pace);
            scene.watch = [&knight = knight, &victim = victim, heading] {
                EXPECT_EQ(knight.GetRotationY(), heading);
                EXPECT_EQ(victim.GetRotationY(), 180.0f - heading);
            };
            const Outcome outcome = scene.Play();
            EXPECT_EQ(outcome.endings, 1);
            EXPECT_EQ(outcome.secondHits, 1);
            std::vector<std::string> cues{"knightStartEnd", "knightMoveShort", "knightAttack"};
            cues.insert(cues.end(), each.death.begin(), each.death.end());
            cues.insert(cues.end(), {"~knightMoveShort", "knightStartEnd"});
            EXPECT_EQ(outcome.cues, cues);
            ExpectAtRest(knight, each.column, each.row, heading);
            ExpectGone(victim, each.column, each.row);
        }
}

TEST_F(Knight_VS_XTest, HangsAboveItsVictimWhileItFires) {
    const auto [knight, victim] = Meet(Player::White, FigureType::Bishop, 5, 6);
    Scene scene(troupe, knight, &victim, {.frameTime = 1.0f / 60.0f});
    ASSERT_TRUE(scene.PlayUntil([&knight = knight] { return knight.attackActive; }));
    // It has the victim's field while the victim still stands there.
    EXPECT_EQ(knight.GetColumn(), victim.GetColumn());
    EXPECT_EQ(knight.GetRow(), victim.GetRow());
    EXPECT_TRUE(victim.active);
    EXPECT_NE(victim.GetShader(), nullptr);
    EXPECT_TRUE(Equal(*knight.GetPosition(), Add(FieldPlace(5, 6), {0.0f, 2.7f, 0.0f})));
    EXPECT_TRUE(knight.firstShotPending);
    EXPECT_FALSE(knight.secondShotPending);
    EXPECT_EQ(troupe.ModelOf(knight).GetAnimationName(), "attack");
    EXPECT_EQ(troupe.ModelOf(victim).GetAnimationName(), "damage");
    ASSERT_TRUE(scene.PlayUntil([&victim = victim] { return !victim.active; }));
    EXPECT_EQ(knight.GetPosition()->y, 2.7f);
    scene.Play();
    EXPECT_EQ(troupe.ModelOf(knight).GetAnimationName(), "stand");
}

}  // namespace tolvane::test

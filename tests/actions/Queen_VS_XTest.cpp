#include "actions/Queen_VS_X.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <set>

#include "actions/ActionFactory.h"
#include "actions/Scene.h"
#include "assets/Material.h"
#include "assets/Numbers.h"
#include "assets/ParticleEffect3.h"

namespace tolvane::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Vertex eye{0.0f, 20.0f, 30.0f};

struct Way {
    int column;
    int row;
};

constexpr std::array ways{Way{0, 1},  Way{1, 1},   Way{1, 0},  Way{1, -1},
                          Way{0, -1}, Way{-1, -1}, Way{-1, 0}, Way{-1, 1}};

constexpr std::array victimTypes{FigureType::Pawn, FigureType::Rook, FigureType::Knight, FigureType::Bishop,
                                 FigureType::Queen};

// Puts the random sequence at a place from which the next numbers, as whole numbers from 0 to 2, are the two.
void AimRandom(int first, int second) {
    for (int skipped = 0; skipped < 1000; ++skipped) {
        const auto restart = [skipped] {
            RestartRandom();
            for (int i = 0; i < skipped; ++i)
                NextRandom();
        };
        restart();
        if (RandomInRange(0, 2) == first && RandomInRange(0, 2) == second) {
            restart();
            return;
        }
    }
    FAIL() << "no such place";
}

class Queen_VS_XTest : public testing::Test {
protected:
    struct Pair {
        Queen3D& queen;
        ChessFigure3D& victim;
    };

    Pair Meet(Player player, FigureType victimType, Way way, int distance) {
        const Player other = player == Player::White ? Player::Black : Player::White;
        Queen3D& queen = troupe.PlaceQueen(player, 3, 4);
        ChessFigure3D& victim =
            troupe.Place(other, victimType, 3 + distance * way.column, 4 + distance * way.row);
        queen.SetAction(ActionFactory().CreateAttackAction(&queen, &victim, fieldWidth));
        return {queen, victim};
    }

    std::vector<std::string> Cues() { return TakeCueNames(troupe); }

    Troupe troupe;
};

// The scene in steps of the test's own choosing, without effects, so that nothing else draws random numbers.
class Queen_VS_XByHand : public Queen_VS_XTest {
protected:
    // Long steps up to where the can stands on the floor and only its clip is waited for.
    void PlayUpToTheDrop() {
        script.Step(10.0f, &eye);  // turn
        script.Step(2.0f, &eye);   // charge
        script.Step(2.0f, &eye);   // glow
        script.Step(2.0f, &eye);   // beam
        script.Step(3.0f, &eye);   // the victim goes, the can comes
        queen.Update(renderVertexArray, 0.0f);
        ASSERT_TRUE(queen.canLit);
    }

    // The drop, up to the frame that sends the saucer.
    void PlayUpToTheUfo() {
        PlayUpToTheDrop();
        while (!queen.ufoVisible) {
            queen.Update(renderVertexArray, 0.1f);
            script.Step(0.01f, &eye);
        }
    }

    // The saucer's way in, up to the frame before the pick-up ends.
    void PlayUpToThePickUp() {
        PlayUpToTheUfo();
        while (!queen.beamActive)
            script.Step(0.05f, &eye);
        script.Step(3.0f, &eye);
        while (queen.canPosition.y < 6.8f)
            script.Step(0.1f, &eye);
    }

    Queen3D& queen = troupe.PlaceQueen(Player::White, 3, 4);
    ChessFigure3D& victim = troupe.Place(Player::Black, FigureType::Pawn, 3, 6);
    Queen_VS_X script{&queen, &victim, fieldWidth};
};

}  // namespace

TEST_F(Queen_VS_XTest, EndsWithEveryVictimAtEveryPaceForBothSides) {
    std::size_t count = 0;
    for (const FigureType victimType : victimTypes)
        for (const Pace& pace : AllPaces()) {
            const Player player = count % 2 ? Player::Black : Player::White;
            const Way way = ways[count % ways.size()];
            const int distance = 1 + static_cast<int>(count % 3);
            ++count;
            SCOPED_TRACE(testing::Message() << static_cast<int>(victimType) << " by " << way.column << ", "
                                            << way.row << " at " << pace);
            const auto [queen, victim] = Meet(player, victimType, way, distance);
            const float victimHeading = victim.GetRotationY();
            const Outcome outcome = Scene(troupe, queen, &victim, pace).Play();
            EXPECT_EQ(outcome.endings, 1);
            EXPECT_EQ(outcome.secondHits, 0);
            EXPECT_THAT(outcome.cues,
                        ElementsAre("queenTransformation", "~queenTransformation", "queenDropCan", "queenUfo",
                                    "queenUfoBeam", "queenUfoEngage", "~queenUfo", "~queenUfo", "queenMove",
                                    "~queenMove"));
            const int column = 3 + distance * way.column;
            const int row = 4 + distance * way.row;
            ExpectAtRest(queen, column, row, player == Player::White ? 0.0f : 180.0f);
            ExpectGone(victim, column, row);
            EXPECT_EQ(victim.GetRotationY(), victimHeading);
            EXPECT_FALSE(queen.canVisible);
            EXPECT_FALSE(queen.ufoVisible);
            EXPECT_FALSE(queen.beamActive);
            EXPECT_FALSE(queen.glowActive);
            EXPECT_FALSE(queen.engineActive);
            if (pace.frameTime < 0.1f) {
                EXPECT_EQ(troupe.ModelOf(queen).GetAnimationName(), "stand");
            }
        }
}

TEST_F(Queen_VS_XTest, PassesItsFourteenPhasesInTheirTimes) {
    constexpr float dt = 1.0f / 64.0f;
    const auto [queen, victim] = Meet(Player::White, FigureType::Rook, {0, 1}, 2);
    Scene scene(troupe, queen, &victim, {.frameTime = dt, .likeTheGame = false});
    const Vertex place = FieldPlace(3, 6);
    const MD2_Instance& model = troupe.ModelOf(queen);
    const float* canColor = queen.can->GetMaterial()->GetColor();
    const float* ufoColor = queen.ufo->GetMaterial()->GetColor();
    float phaseStart = 0.0f;
    const auto phaseTime = [&scene, &phaseStart] {
        const float time = scene.Seconds() - phaseStart;
        phaseStart = scene.Seconds();
        return time;
    };

    // Turn: straight ahead it is one frame.
    EXPECT_FALSE(scene.PlayFrame());
    EXPECT_EQ(model.GetAnimationName(), "attack");
    EXPECT_FLOAT_EQ(phaseTime(), dt);

    // Charge
    ASSERT_TRUE(scene.PlayUntil([&queen = queen] { return queen.glowActive; }));
    EXPECT_FLOAT_EQ(phaseTime(), 77.0f * dt);  // above 1.2
    EXPECT_THAT(Cues(), ElementsAre("queenTransformation"));
    EXPECT_FALSE(queen.beamActive);

    // Glow: the charge's time runs on to 2.5.
    ASSERT_TRUE(scene.PlayUntil([&queen = queen] { return queen.beamActive; }));
    EXPECT_FLOAT_EQ(phaseTime(), 84.0f * dt);
    EXPECT_FALSE(queen.glowEmitter.GetActive().empty());
    EXPECT_TRUE(queen.beamEmitter.GetActive().empty());
    EXPECT_TRUE(Equal(queen.beamEmitter.position, {place.x, -0.5f, place.z}));
    EXPECT_TRUE(Equal(queen.beamEmitter.positionSpread, {1.0f, 0.0f, 1.0f}));
    EXPECT_TRUE(Equal(queen.beamEmitter.direction, {0.0f, 1.0f, 0.0f}));
    EXPECT_TRUE(Equal(queen.beamEmitter.directionSpread, {0.2f, 0.0f, 0.2f}));
    EXPECT_EQ(queen.beamEmitter.lifetimeMin, 2.5f);
    EXPECT_EQ(queen.beamEmitter.lifetimeMax, 3.0f);

    // Beam: 1.5
    queen.canLit = true;
    ASSERT_TRUE(scene.PlayUntil([&queen = queen] { return !queen.canLit; }));
    EXPECT_FLOAT_EQ(phaseTime(), 97.0f * dt);
    EXPECT_TRUE(Equal(queen.canPosition, place));
    EXPECT_EQ(canColor[3], 0.0f);
    EXPECT_NE(victim.GetShader(), nullptr);

    // Dissolve: the victim goes in 2.67 seconds, the can comes in 2.
    ASSERT_TRUE(scene.PlayUntil([&queen = queen] { return queen.canVisible; }));
    EXPECT_FLOAT_EQ(phaseTime(), 171.0f * dt);
    EXPECT_FALSE(victim.active);
    EXPECT_EQ(queen.can->GetMode(), MD2_AnimationMode::Freeze);
    EXPECT_TRUE(queen.beamActive);
    EXPECT_FALSE(queen.canLit);
    ASSERT_TRUE(scene.PlayUntil([&queen = queen] { return queen.canLit; }));
    EXPECT_NEAR(phaseTime(), 2.0f, 2.0f * dt);
    EXPECT_EQ(canColor[3], 1.0f);
    EXPECT_FALSE(queen.beamActive);
    EXPECT_FALSE(queen.glowActive);
    EXPECT_THAT(Cues(), ElementsAre("~queenTransformation", "queenDropCan"));
    EXPECT_EQ(queen.can->GetAnimationName(), "run");
    EXPECT_EQ(queen.can->GetMode(), MD2_AnimationMode::Sequence);

    // The can drops, then stands through one round of its clip.
    ASSERT_TRUE(scene.PlayUntil([&queen = queen] { return queen.ufoVisible; }));
    EXPECT_NEAR(phaseTime(), 105.0f * dt, 2.0f * dt);
    EXPECT_EQ(queen.can->GetAnimationName(), "stand");
    EXPECT_THAT(Cues(), ElementsAre("queenUfo"));
    EXPECT_FALSE(queen.ufoLit);
    EXPECT_FLOAT_EQ(std::fabs(queen.ufoPosition.x - place.x), 30.0f);
    EXPECT_FLOAT_EQ(std::fabs(queen.ufoPosition.z - place.z), 30.0f);
    EXPECT_EQ(queen.ufoPosition.y, 20.0f);
    EXPECT_FLOAT_EQ(ufoColor[3], dt / 3.0f);
    EXPECT_EQ(queen.ufo->speed, 5.0f);

    // The saucer fades in on its way, 5 units a second and a little less each frame, level.
    ASSERT_TRUE(scene.PlayUntil([&queen = queen] { return queen.ufoLit; }));
    EXPECT_FLOAT_EQ(phaseTime(), 128.0f * dt);
    EXPECT_EQ(ufoColor[3], 0.0f);
    EXPECT_EQ(queen.ufoPosition.y, 20.0f);
    const float covered = 30.0f - std::fabs(queen.ufoPosition.x - place.x);
    EXPECT_NEAR(covered, 5.0f * 2.0f - 5.0f * 2.0f / 250.0f, 0.01f);
    EXPECT_NEAR(std::fabs(queen.ufoPosition.z - place.z), 30.0f - covered, 1e-3f);

    // It comes in, half as fast down, and stands above the victim exactly.
    ASSERT_TRUE(scene.PlayUntil([&queen = queen, place] {
        return queen.ufoPosition.x == place.x && queen.ufoPosition.z == place.z;
    }));
    EXPECT_NEAR(phaseTime(), (30.0f - covered) / 4.92f, 0.06f);
    EXPECT_NEAR(queen.ufoPosition.y, 20.0f - (30.0f - covered) / 2.0f, 0.05f);

    // It sinks to 7.
    const float height = queen.ufoPosition.y;
    ASSERT_TRUE(scene.PlayUntil([&queen = queen] { return queen.beamActive; }));
    EXPECT_NEAR(phaseTime(), (height - 7.0f) / 4.88f, 0.03f);
    EXPECT_EQ(queen.ufoPosition.y, 7.0f);
    EXPECT_TRUE(Equal(queen.beamEmitter.position, {place.x, 6.9f, place.z}));
    EXPECT_TRUE(Equal(queen.beamEmitter.positionSpread, {0.5f, 0.0f, 0.5f}));
    EXPECT_TRUE(Equal(queen.beamEmitter.direction, {0.0f, -1.0f, 0.0f}));
    EXPECT_TRUE(Equal(queen.beamEmitter.directionSpread, {-0.1f, 0.0f, -0.1f}));
    EXPECT_EQ(queen.beamEmitter.lifetimeMin, 3.5f);
    EXPECT_EQ(queen.beamEmitter.lifetimeMax, 4.0f);
    EXPECT_THAT(Cues(), ElementsAre("queenUfoBeam"));

    // Pick-up: 2.5 seconds, then 7 units at 1 a second.
    ASSERT_TRUE(scene.PlayUntil([&queen = queen] { return queen.canPosition.y > 0.0f; }));
    EXPECT_FLOAT_EQ(phaseTime(), 161.0f * dt);
    ASSERT_TRUE(scene.PlayUntil([&queen = queen] { return !queen.canVisible; }));
    EXPECT_FLOAT_EQ(phaseTime(), 448.0f * dt);
    EXPECT_EQ(queen.canPosition.y, 7.0f);
    EXPECT_FALSE(queen.beamActive);
    EXPECT_THAT(Cues(), ElementsAre("queenUfoEngage"));

    // Pause: 2.5
    const Vertex hovering = queen.ufoPosition;
    std::vector<std::string> cues;
    ASSERT_TRUE(scene.PlayUntil([&cues, this] { return !(cues = Cues()).empty(); }));
    EXPECT_FLOAT_EQ(phaseTime(), 161.0f * dt);
    EXPECT_THAT(cues, ElementsAre("~queenUfo"));
    EXPECT_TRUE(Equal(queen.ufoPosition, hovering));

    // It leaves, faster by a twenty-fifth each frame, and is gone at once after 3.5.
    scene.PlayFrame();
    const float firstStep = queen.ufoPosition.y - 7.0f;
    EXPECT_NEAR(firstStep, 4.85f * 1.04f * dt, 2e-3f);
    scene.PlayFrame();
    EXPECT_NEAR((queen.ufoPosition.y - 7.0f - firstStep) / firstStep, 1.04f, 1e-3f);
    ASSERT_TRUE(scene.PlayUntil([&queen = queen] { return !queen.ufoVisible; }));
    EXPECT_FLOAT_EQ(phaseTime(), 225.0f * dt);
    EXPECT_EQ(ufoColor[3], 0.0f);
    EXPECT_THAT(Cues(), ElementsAre("~queenUfo"));
    EXPECT_TRUE(queen.engineActive);
    EXPECT_EQ(model.GetAnimationName(), "run_start");

    // She flies two fields at 2 units a second.
    ASSERT_TRUE(scene.PlayUntil([&queen = queen] { return !queen.engineActive; }));
    EXPECT_NEAR(phaseTime(), 3.5f, 0.05f);
    EXPECT_TRUE(queen.engineEmitter->GetActive().empty());
    EXPECT_TRUE(Equal(*queen.GetPosition(), place));
    EXPECT_THAT(Cues(), ElementsAre("queenMove", "~queenMove"));

    // Straight ahead there is nothing to turn back from.
    EXPECT_TRUE(scene.PlayFrame());
    EXPECT_NEAR(scene.Seconds(), 38.0f, 2.0f);
    ExpectAtRest(queen, 3, 6, 0.0f);
}

TEST_F(Queen_VS_XTest, TurnsToHerVictimWhoDoesNotTurn) {
    const auto [queen, victim] = Meet(Player::Black, FigureType::Pawn, {1, 1}, 1);
    Scene scene(troupe, queen, &victim, {.frameTime = 1.0f / 60.0f});
    ASSERT_TRUE(scene.PlayUntil([&queen = queen] { return queen.glowActive; }));
    EXPECT_EQ(queen.GetRotationY(), 315.0f);
    EXPECT_EQ(victim.GetRotationY(), 0.0f);
    EXPECT_NEAR(scene.Seconds(), 135.0f / 60.0f + 1.2f, 0.05f);
}

TEST_F(Queen_VS_XTest, ShowsOtherCansInOtherScenesOfTheSameQueen) {
    Queen3D& queen = troupe.PlaceQueen(Player::White, 3, 4);
    ChessFigure3D& victim = troupe.Place(Player::Black, FigureType::Pawn, 3, 6);
    std::set<const MD2_Instance*> seen;
    for (int i = 0; i < 20; ++i) {
        const Queen_VS_X scene(&queen, &victim, fieldWidth);
        seen.insert(queen.can);
    }
    EXPECT_GT(seen.size(), 1u);
}

TEST_F(Queen_VS_XTest, PlaysTwiceInARowWithTheSameCast) {
    for (int scene = 0; scene < 3; ++scene) {
        const Player player = scene % 2 ? Player::Black : Player::White;
        const auto [queen, victim] = Meet(player, FigureType::Bishop, {1, 0}, 2);
        EXPECT_EQ(Scene(troupe, queen, &victim, {.frameTime = 1.0f / 30.0f}).Play().endings, 1);
        ExpectAtRest(queen, 5, 4, player == Player::White ? 0.0f : 180.0f);
    }
}

TEST_F(Queen_VS_XByHand, SendsTheSaucerFromASideThatIsDrawnForEachAxis) {
    PlayUpToTheDrop();
    const Vertex place = *victim.GetPosition();
    // Only the upper third of the numbers means the positive side.
    for (int first = 0; first <= 2; ++first)
        for (int second = 0; second <= 2; ++second) {
            Queen3D& other = troupe.PlaceQueen(Player::White, 3, 4);
            ChessFigure3D& prey = troupe.Place(Player::Black, FigureType::Pawn, 3, 6);
            Queen_VS_X scene(&other, &prey, fieldWidth);
            for (const float step : {10.0f, 2.0f, 2.0f, 2.0f, 3.0f})
                scene.Step(step, &eye);
            other.Update(renderVertexArray, 0.0f);
            while (!other.ufoVisible) {
                other.Update(renderVertexArray, 0.1f);
                AimRandom(first, second);
                scene.Step(0.01f, &eye);
            }
            EXPECT_FLOAT_EQ(other.ufoPosition.x, place.x + (first == 2 ? 30.0f : -30.0f));
            EXPECT_FLOAT_EQ(other.ufoPosition.z, place.z + (second == 2 ? 30.0f : -30.0f));
        }
}

TEST_F(Queen_VS_XByHand, TheSaucerLeavesAlongADirectionThatIsDrawnAnew) {
    PlayUpToThePickUp();
    while (queen.canVisible) {
        AimRandom(2, 0);  // towards positive, towards negative
        script.Step(0.1f, &eye);
    }
    const Vertex before = queen.ufoPosition;
    script.Step(3.0f, &eye);  // pause
    script.Step(0.1f, &eye);
    const Vertex way = Subtract(queen.ufoPosition, before);
    EXPECT_GT(way.y, 0.4f);
    EXPECT_NEAR(way.x, -way.y, 1e-5f);
    EXPECT_NEAR(way.z, way.y, 1e-5f);
}

TEST_F(Queen_VS_XByHand, WithoutADirectionTheSaucerLeavesStraightUp) {
    PlayUpToThePickUp();
    while (queen.canVisible) {
        AimRandom(1, 1);
        script.Step(0.1f, &eye);
    }
    const Vertex before = queen.ufoPosition;
    script.Step(3.0f, &eye);  // pause
    for (int i = 0; i < 10; ++i)
        script.Step(0.1f, &eye);
    EXPECT_EQ(queen.ufoPosition.x, before.x);
    EXPECT_EQ(queen.ufoPosition.z, before.z);
    EXPECT_GT(queen.ufoPosition.y, before.y + 4.0f);
}

TEST_F(Queen_VS_XByHand, TheSaucersTakeOffGoesByFramesEvenByEmptyOnes) {
    PlayUpToThePickUp();
    while (queen.canVisible)
        script.Step(0.1f, &eye);
    script.Step(3.0f, &eye);  // pause
    for (int i = 0; i < 25; ++i)
        script.Step(0.0f, &eye);
    const float before = queen.ufoPosition.y;
    script.Step(0.1f, &eye);
    EXPECT_NEAR(queen.ufoPosition.y - before, 0.1f * 4.85f * std::pow(1.04f, 26.0f), 0.05f);
}

TEST_F(Queen_VS_XByHand, AVeryLongFrameBrakesTheSaucerAndBelowOneItBrakesNoMore) {
    PlayUpToTheUfo();
    const float before = queen.ufoPosition.x;
    script.Step(220.0f, &eye);  // 5 less 220 times a fiftieth: 0.6 is left
    EXPECT_NEAR(std::fabs(queen.ufoPosition.x - before), 220.0f * 0.6f, 0.01f);
    const float after = queen.ufoPosition.x;
    script.Step(10.0f, &eye);
    EXPECT_NEAR(std::fabs(queen.ufoPosition.x - after), 10.0f * 0.6f, 0.05f);
}

TEST_F(Queen_VS_XByHand, TheCanWaitsForItsClipHoweverLongTheFrames) {
    PlayUpToTheDrop();
    for (int i = 0; i < 20; ++i)
        script.Step(10.0f, &eye);
    EXPECT_FALSE(queen.ufoVisible);
}

TEST_F(Queen_VS_XByHand, TheVictimDissolvesWithoutADeathSound) {
    PlayUpToTheDrop();
    EXPECT_FALSE(victim.active);
    EXPECT_THAT(Cues(), ElementsAre("queenTransformation", "~queenTransformation", "queenDropCan"));
    EXPECT_THAT(Cues(), IsEmpty());
}

}  // namespace tolvane::test

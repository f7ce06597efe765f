#include "figures/ChessFigure3D.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <type_traits>

#include "actions/Action.h"
#include "assets/Numbers.h"
#include "figures/MixerLog.h"
#include "figures/Troupe.h"

namespace tolvane::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Vertex eye{0.0f, 20.0f, 30.0f};

// A figure that brings nothing of its own: no voices, no effects.
class PlainFigure final : public ChessFigure3D {
public:
    PlainFigure(int atColumn, int atRow, MD2_Instance* model, Shader* light, SoundManager* sounds)
        : ChessFigure3D(atColumn, atRow, Player::Black, FigureType::Rook, model, light, sounds) {}

    void Draw(int, bool, bool, bool, const Vertex*, const Vertex*) override {}
};

// A script that ends on its third step and counts how many there were.
class ThreeSteps final : public Action {
public:
    explicit ThreeSteps(int* stepCount) : steps(stepCount) {}

    bool Step(float, const Vertex*) override {
        ++*steps;
        return ++state == 3;
    }

private:
    int* steps;
};

struct Place {
    int column;
    int row;
    Vertex point;

    bool operator==(const Place& other) const {
        return column == other.column && row == other.row && Equal(point, other.point);
    }
};

std::ostream& operator<<(std::ostream& out, const Place& place) {
    return out << "field " << place.column << ", " << place.row << " at " << place.point.x << ", "
               << place.point.y << ", " << place.point.z;
}

Place PlaceOf(ChessFigure3D& figure) {
    return {static_cast<int>(figure.GetColumn()), static_cast<int>(figure.GetRow()), *figure.GetPosition()};
}

Place Home(int column, int row) {
    return {column, row, FieldPlace(column, row)};
}

// Walks until arrival; false if that takes longer than a minute.
bool WalkToEnd(ChessFigure3D& figure, float dt) {
    for (float time = 0.0f; time < 60.0f; time += dt)
        if (figure.Walk(dt))
            return true;
    return false;
}

class ChessFigure3DTest : public testing::Test {
protected:
    Troupe troupe;
};

}  // namespace

TEST_F(ChessFigure3DTest, WalksTurnsAndSpeaks) {
    ChessFigure3D& pawn = troupe.Place(Player::White, FigureType::Pawn, 4, 1);

    pawn.SetTarget(4, 3, fieldWidth);
    pawn.PlayAnimationList(&pawn.runList);
    EXPECT_EQ(troupe.ModelOf(pawn).GetAnimationName(), "run");
    EXPECT_TRUE(WalkToEnd(pawn, 1.0f / 60.0f));
    EXPECT_EQ(PlaceOf(pawn), Home(4, 3));
    EXPECT_EQ(troupe.ModelOf(pawn).GetAnimationName(), "stand");

    pawn.SetTargetHeading(90.0f);
    while (!pawn.TurnToTargetHeading(0.001f)) {
    }
    EXPECT_EQ(pawn.GetRotationY(), 90.0f);

    EXPECT_TRUE(pawn.PlaySelectedSound());
}

TEST_F(ChessFigure3DTest, IsNeitherCopiedNorMoved) {
    EXPECT_FALSE(std::is_copy_constructible_v<Pawn3D>);
    EXPECT_FALSE(std::is_move_constructible_v<Pawn3D>);
    EXPECT_FALSE(std::is_copy_assignable_v<Pawn3D>);
    EXPECT_FALSE(std::is_move_assignable_v<Pawn3D>);
}

TEST_F(ChessFigure3DTest, StartsIdleWithEverythingOff) {
    PlainFigure figure(3, 5, troupe.MakeInstance("rook"), &troupe.Light(), &troupe.Sounds());

    EXPECT_EQ(figure.GetColumn(), 3u);
    EXPECT_EQ(figure.GetRow(), 5u);
    EXPECT_EQ(figure.GetPlayer(), Player::Black);
    EXPECT_EQ(figure.GetFigureType(), FigureType::Rook);
    EXPECT_EQ(figure.GetShader(), &troupe.Light());
    EXPECT_FALSE(figure.IsFinished());
    EXPECT_FALSE(figure.attackActive);
    EXPECT_FALSE(figure.damageActive);
    EXPECT_FALSE(figure.heavyDamageActive);
    EXPECT_FALSE(figure.firstShotPending);
    EXPECT_FALSE(figure.secondShotPending);
    EXPECT_TRUE(figure.firstWalkStep);
    EXPECT_TRUE(figure.lastAnimateResult);
    EXPECT_EQ(figure.effectTimer, 0.0f);
    EXPECT_EQ(figure.attackEmitter, nullptr);
    EXPECT_EQ(figure.damageEmitter, nullptr);
    EXPECT_EQ(figure.heavyDamageEmitter, nullptr);
    EXPECT_EQ(figure.attackAnimations, nullptr);
}

TEST_F(ChessFigure3DTest, TakesItsBoundsFromTheModel) {
    MD2_Instance& model = *troupe.MakeInstance("rook");
    model.boundCentre = {0.1f, 0.2f, 0.3f};
    model.boundRadius = 1.5f;
    PlainFigure figure(0, 0, &model, nullptr, &troupe.Sounds());

    EXPECT_TRUE(Equal(figure.boundCentre, {0.1f, 0.2f, 0.3f}));
    EXPECT_EQ(figure.boundRadius, 1.5f);
}

TEST_F(ChessFigure3DTest, DoesNothingInFightsWhenItBringsNothing) {
    PlainFigure figure(0, 0, troupe.MakeInstance("rook"), &troupe.Light(), &troupe.Sounds());

    EXPECT_TRUE(figure.FadeOut(0.1f, &eye));
    EXPECT_TRUE(figure.RunDamage(0.1f, &eye));
    EXPECT_TRUE(figure.RunAttack(0.1f, &eye));
    figure.PlayDeathSound();
    figure.PlayExplosionSound();
    figure.StartMoveSound();
    figure.StopMoveSound();
    EXPECT_TRUE(figure.active);
    EXPECT_THAT(TakeCues(troupe.Sounds()), IsEmpty());
}

TEST_F(ChessFigure3DTest, WithoutVoicesAnswersFalseAndStaysSilent) {
    PlainFigure figure(0, 0, troupe.MakeInstance("rook"), &troupe.Light(), &troupe.Sounds());

    EXPECT_FALSE(figure.PlayAckSound());
    EXPECT_FALSE(figure.PlaySelectedSound());
    EXPECT_THAT(TakeCues(troupe.Sounds()), IsEmpty());
}

TEST_F(ChessFigure3DTest, SpeaksWithARandomOneOfItsVoices) {
    ChessFigure3D& queen = troupe.Place(Player::White, FigureType::Queen, 3, 0);
    RestartRandom();
    // The first numbers of the sequence, up to 32767, are 41, 18467 and 6334.
    EXPECT_TRUE(queen.PlayAckSound());
    EXPECT_TRUE(queen.PlayAckSound());
    EXPECT_TRUE(queen.PlayAckSound());
    EXPECT_THAT(TakeCues(troupe.Sounds()),
                ElementsAre(Played("media/queenAck0.wav"), Played("media/queenAck1.wav"),
                            Played("media/queenAck0.wav")));
}

TEST_F(ChessFigure3DTest, KeepsWhatItsModelAnswered) {
    ChessFigure3D& pawn = troupe.Place(Player::White, FigureType::Pawn, 0, 1);
    pawn.Update(0, 0.01f);
    EXPECT_FALSE(pawn.lastAnimateResult);
    EXPECT_GT(troupe.ModelOf(pawn).GetInterpolation(), 0.0f);
    pawn.SetAnimation({"damage", MD2_AnimationMode::Freeze, 1.0f});
    pawn.Update(0, 0.01f);
    EXPECT_TRUE(pawn.lastAnimateResult);
}

TEST_F(ChessFigure3DTest, PlaysAListFromItsFirstEntryEachTime) {
    ChessFigure3D& knight = troupe.Place(Player::White, FigureType::Knight, 1, 0);
    knight.PlayAnimationList(&knight.runList);
    EXPECT_EQ(troupe.ModelOf(knight).GetAnimationName(), "run_start");
    troupe.ModelOf(knight).NextAnimation();
    EXPECT_EQ(troupe.ModelOf(knight).GetAnimationName(), "run");
    knight.PlayAnimationList(&knight.runList);
    EXPECT_EQ(troupe.ModelOf(knight).GetAnimationName(), "run_start");
}

TEST_F(ChessFigure3DTest, GivesItsMaterialOut) {
    ChessFigure3D& pawn = troupe.Place(Player::White, FigureType::Pawn, 0, 1);
    EXPECT_EQ(pawn.GetInstanceMaterial(), troupe.ModelOf(pawn).GetMaterial());
}

// Scripts

TEST_F(ChessFigure3DTest, StepsItsScriptUntilThatEndsAndReportsTheEndOnce) {
    ChessFigure3D& pawn = troupe.Place(Player::White, FigureType::Pawn, 0, 1);
    EXPECT_FALSE(pawn.UpdateEffects(0.1f, &eye));

    int steps = 0;
    pawn.SetAction(new ThreeSteps(&steps));
    EXPECT_TRUE(pawn.IsFinished());
    EXPECT_FALSE(pawn.UpdateEffects(0.1f, &eye));
    EXPECT_FALSE(pawn.UpdateEffects(0.1f, &eye));
    EXPECT_TRUE(pawn.IsFinished());
    EXPECT_TRUE(pawn.UpdateEffects(0.1f, &eye));
    EXPECT_FALSE(pawn.IsFinished());
    EXPECT_FALSE(pawn.UpdateEffects(0.1f, &eye));
    EXPECT_EQ(steps, 3);
}

TEST_F(ChessFigure3DTest, WaitingChangesNothing) {
    ChessFigure3D& pawn = troupe.Place(Player::White, FigureType::Pawn, 0, 1);
    pawn.SetWaiting(true);
    EXPECT_FALSE(pawn.IsFinished());
    EXPECT_FALSE(pawn.UpdateEffects(0.1f, &eye));
}

TEST_F(ChessFigure3DTest, RefusesAScriptThatIsNone) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    ChessFigure3D& pawn = troupe.Place(Player::White, FigureType::Pawn, 0, 1);
    EXPECT_DEBUG_DEATH(pawn.SetAction(nullptr), "script != nullptr");
}

// Walking

TEST_F(ChessFigure3DTest, WalksInAllEightDirectionsToTheExactField) {
    struct Step {
        int column;
        int row;
    };
    constexpr Step steps[]{{0, 1}, {1, 1}, {1, 0}, {1, -1}, {0, -1}, {-1, -1}, {-1, 0}, {-1, 1}};
    for (const float dt : {1.0f / 120.0f, 1.0f / 30.0f, 0.5f, 3.0f})
        for (const Step step : steps)
            for (const int fields : {1, 3}) {
                ChessFigure3D& rook = troupe.Place(Player::Black, FigureType::Rook, 4, 4);
                rook.SetTarget(4 + fields * step.column, 4 + fields * step.row, fieldWidth);
                EXPECT_TRUE(WalkToEnd(rook, dt));
                EXPECT_EQ(PlaceOf(rook), Home(4 + fields * step.column, 4 + fields * step.row))
                    << "dt " << dt;
            }
}

TEST_F(ChessFigure3DTest, KeepsItsSpeedAlongADiagonal) {
    ChessFigure3D& bishop = troupe.Place(Player::White, FigureType::Bishop, 2, 0);
    bishop.SetTarget(4, 2, fieldWidth);
    bishop.Walk(0.5f);
    const Vertex way = Subtract(*bishop.GetPosition(), FieldPlace(2, 0));
    EXPECT_NEAR(Length(way), 2.8f * 0.5f, 1e-3f);
    EXPECT_GT(way.x, 0.0f);
    EXPECT_LT(way.z, 0.0f);  // a higher row
}

TEST_F(ChessFigure3DTest, KeepsTheFieldOfDepartureUntilItArrives) {
    ChessFigure3D& rook = troupe.Place(Player::White, FigureType::Rook, 0, 0);
    rook.SetTarget(0, 7, fieldWidth);
    while (!rook.Walk(0.1f)) {
        ASSERT_EQ(rook.GetRow(), 0u);
        ASSERT_EQ(rook.GetColumn(), 0u);
    }
    EXPECT_EQ(PlaceOf(rook), Home(0, 7));
}

TEST_F(ChessFigure3DTest, ArrivesWithinThreeHundredthsOfItsTarget) {
    ChessFigure3D& rook = troupe.Place(Player::White, FigureType::Rook, 0, 0);
    rook.SetTarget(0, 1, fieldWidth);
    EXPECT_FALSE(rook.Walk(3.46f / 1.7f));  // 0.04 short
    EXPECT_TRUE(rook.Walk(0.015f / 1.7f));  // 0.025 short
    EXPECT_EQ(PlaceOf(rook), Home(0, 1));
}

TEST_F(ChessFigure3DTest, OvershootingOnALongFrameLandsExactlyOnTheTarget) {
    ChessFigure3D& pawn = troupe.Place(Player::White, FigureType::Pawn, 4, 1);
    pawn.SetTarget(4, 2, fieldWidth);
    EXPECT_TRUE(pawn.Walk(100.0f));
    EXPECT_EQ(PlaceOf(pawn), Home(4, 2));
}

TEST_F(ChessFigure3DTest, NeverArrivesOnItsOwnField) {
    ChessFigure3D& pawn = troupe.Place(Player::White, FigureType::Pawn, 4, 1);
    pawn.SetTarget(4, 1, fieldWidth);
    for (int i = 0; i < 100; ++i)
        EXPECT_FALSE(pawn.Walk(0.1f));
    EXPECT_EQ(PlaceOf(pawn), Home(4, 1));
}

TEST_F(ChessFigure3DTest, StandsStillInAFrameWithoutTime) {
    ChessFigure3D& pawn = troupe.Place(Player::White, FigureType::Pawn, 4, 1);
    pawn.SetTarget(4, 2, fieldWidth);
    EXPECT_FALSE(pawn.Walk(0.0f));
    EXPECT_EQ(PlaceOf(pawn), Home(4, 1));
}

TEST_F(ChessFigure3DTest, WalksBeyondTheBoardAndBack) {
    ChessFigure3D& rook = troupe.Place(Player::White, FigureType::Rook, 5, 0);
    rook.SetTarget(5, -1, fieldWidth);
    ASSERT_TRUE(WalkToEnd(rook, 0.05f));
    EXPECT_EQ(PlaceOf(rook), Home(5, -1));
    rook.SetTarget(3, -1, fieldWidth);
    ASSERT_TRUE(WalkToEnd(rook, 0.05f));
    EXPECT_EQ(PlaceOf(rook), Home(3, -1));
    rook.SetTarget(3, 0, fieldWidth);
    ASSERT_TRUE(WalkToEnd(rook, 0.05f));
    EXPECT_EQ(PlaceOf(rook), Home(3, 0));
}

TEST_F(ChessFigure3DTest, AimsFromWhereItStandsAndNotFromTheBoard) {
    ChessFigure3D& pawn = troupe.Place(Player::White, FigureType::Pawn, 4, 1);
    pawn.Translate(0.0f, 0.0f, 1.0f);  // between two fields
    pawn.SetTarget(4, 2, fieldWidth);
    ASSERT_TRUE(WalkToEnd(pawn, 0.05f));
    EXPECT_TRUE(Equal(*pawn.GetPosition(), Add(FieldPlace(4, 2), {0.0f, 0.0f, 1.0f})));
}

TEST_F(ChessFigure3DTest, SoundsItsStepsFromTheFirstToTheLast) {
    ChessFigure3D& rook = troupe.Place(Player::White, FigureType::Rook, 0, 0);
    for (int walk = 1; walk <= 2; ++walk) {
        rook.SetTarget(0, walk, fieldWidth);
        rook.Walk(0.01f);
        EXPECT_FALSE(rook.firstWalkStep);
        EXPECT_THAT(TakeCues(troupe.Sounds()), ElementsAre(Played("media/rookMove.wav", 128, 5)));
        WalkToEnd(rook, 0.1f);
        EXPECT_TRUE(rook.firstWalkStep);
        EXPECT_THAT(TakeCues(troupe.Sounds()), ElementsAre(Faded("media/rookMove.wav", 50)));
    }
}

// Turning

TEST_F(ChessFigure3DTest, TurnsAtThirtyDegreesASecondForEachUnitOfItsSpeed) {
    ChessFigure3D& bishop = troupe.Place(Player::White, FigureType::Bishop, 2, 0);
    bishop.SetTargetHeading(-90.0f);
    EXPECT_FALSE(bishop.TurnToTargetHeading(0.5f));
    EXPECT_FLOAT_EQ(bishop.GetRotationY(), -42.0f);
}

TEST_F(ChessFigure3DTest, ReportsAHeadingThatItHasAlreadyOnTheFirstCall) {
    ChessFigure3D& bishop = troupe.Place(Player::Black, FigureType::Bishop, 2, 7);
    bishop.SetTargetHeading(180.0f);
    EXPECT_TRUE(bishop.TurnToTargetHeading(0.1f));
    EXPECT_EQ(bishop.GetRotationY(), 180.0f);
}

TEST_F(ChessFigure3DTest, TakesTheExactHeadingOnceItIsWithinEightHundredths) {
    ChessFigure3D& bishop = troupe.Place(Player::White, FigureType::Bishop, 2, 0);
    bishop.SetTargetHeading(1.0f);
    EXPECT_FALSE(bishop.TurnToTargetHeading(0.90f / 84.0f));
    EXPECT_TRUE(bishop.TurnToTargetHeading(0.03f / 84.0f));
    EXPECT_EQ(bishop.GetRotationY(), 1.0f);
}

TEST_F(ChessFigure3DTest, ReachesAFullTurn) {
    ChessFigure3D& pawn = troupe.Place(Player::Black, FigureType::Pawn, 0, 6);
    pawn.SetTargetHeading(360.0f);
    int steps = 0;
    while (!pawn.TurnToTargetHeading(0.001f) && steps < 10000)
        ++steps;
    EXPECT_EQ(pawn.GetRotationY(), 360.0f);
}

TEST_F(ChessFigure3DTest, TurnsTheLongWayWhenTheNumbersSaySo) {
    ChessFigure3D& pawn = troupe.Place(Player::Black, FigureType::Pawn, 0, 6);
    pawn.SetTargetHeading(-90.0f);
    EXPECT_FALSE(pawn.TurnToTargetHeading(1.0f));
    EXPECT_FLOAT_EQ(pawn.GetRotationY(), 105.0f);
}

}  // namespace tolvane::test

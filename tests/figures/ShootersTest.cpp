#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "assets/Material.h"
#include "assets/ParticleEffect.h"
#include "figures/MixerLog.h"
#include "figures/Troupe.h"

namespace tolvane::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Vertex eye{0.0f, 20.0f, 30.0f};
constexpr float frame = 1.0f / 64.0f;

class ShootersTest : public testing::Test {
protected:
    static void OpenFire(ChessFigure3D& figure, bool secondShot) {
        figure.attackActive = true;
        figure.firstShotPending = true;
        figure.secondShotPending = secondShot;
    }

    // Seconds until the attack reports its end.
    static float AttackTime(ChessFigure3D& figure, float dt) {
        float time = dt;
        while (!figure.RunAttack(dt, &eye) && time < 60.0f)
            time += dt;
        return time;
    }

    std::vector<Cue> Cues() { return TakeCues(troupe.Sounds()); }

    Troupe troupe;
};

}  // namespace

TEST_F(ShootersTest, APawnShootsRightThenLeftAQuarterOfASecondApart) {
    ChessFigure3D& pawn = troupe.Place(Player::White, FigureType::Pawn, 4, 1);
    const ParticleEffect& flame = *pawn.attackEmitter;
    OpenFire(pawn, true);

    EXPECT_FALSE(pawn.RunAttack(frame, &eye));
    EXPECT_THAT(Cues(), ElementsAre(Played("media/pawnshot2.wav")));
    EXPECT_TRUE(Equal(flame.position, {0.34f, 1.45f, -0.2f}));
    EXPECT_TRUE(Equal(flame.positionSpread, {0.1f, 0.01f, 0.01f}));
    EXPECT_FALSE(pawn.firstShotPending);
    EXPECT_FALSE(flame.GetActive().empty());

    float time = frame;
    while (pawn.secondShotPending) {
        EXPECT_FALSE(pawn.RunAttack(frame, &eye));
        time += frame;
    }
    EXPECT_FLOAT_EQ(time, 0.25f + frame);
    EXPECT_THAT(Cues(), ElementsAre(Played("media/pawnshot2.wav")));
    EXPECT_TRUE(Equal(flame.position, {-0.25f, 1.45f, -0.2f}));
    EXPECT_TRUE(flame.GetActive().empty());

    EXPECT_FLOAT_EQ(AttackTime(pawn, frame), 0.25f + frame);
    EXPECT_FALSE(pawn.attackActive);
    EXPECT_THAT(Cues(), IsEmpty());
}

TEST_F(ShootersTest, ARookShootsOnceWhateverIsPending) {
    for (const bool second : {false, true}) {
        ChessFigure3D& rook = troupe.Place(Player::White, FigureType::Rook, 0, 0);
        OpenFire(rook, second);
        EXPECT_FLOAT_EQ(AttackTime(rook, frame), 0.25f + frame);
        EXPECT_THAT(Cues(), ElementsAre(Played("media/rookshot3.wav")));
        EXPECT_TRUE(Equal(rook.attackEmitter->position, {1.3f, 0.8f, -1.2f}));
        EXPECT_TRUE(Equal(rook.attackEmitter->positionSpread, {0.3f, 0.3f, 0.01f}));
        EXPECT_FALSE(rook.attackActive);
        EXPECT_EQ(rook.secondShotPending, second);
    }
}

TEST_F(ShootersTest, ABishopFiresExactlySixShotsWhateverTheFrameTime) {
    const Cue shot = Played("media/pawnshot.wav");
    for (const float dt : {1.0f / 240.0f, 1.0f / 60.0f, 1.0f / 20.0f, 0.5f, 3.0f}) {
        ChessFigure3D& bishop = troupe.Place(Player::White, FigureType::Bishop, 2, 0);
        OpenFire(bishop, true);
        AttackTime(bishop, dt);
        EXPECT_THAT(Cues(), ElementsAre(shot, shot, shot, shot, shot, shot)) << dt;
        EXPECT_FALSE(bishop.attackActive);
        EXPECT_FALSE(bishop.firstShotPending);
        EXPECT_FALSE(bishop.secondShotPending);
        // and the next attack is as long as the first
        OpenFire(bishop, true);
        AttackTime(bishop, dt);
        EXPECT_EQ(Cues().size(), 6u) << dt;
    }
}

TEST_F(ShootersTest, ABishopAlternatesItsBarrelsForAboutASecond) {
    ChessFigure3D& bishop = troupe.Place(Player::White, FigureType::Bishop, 2, 0);
    OpenFire(bishop, true);
    EXPECT_FALSE(bishop.RunAttack(frame, &eye));
    EXPECT_TRUE(Equal(bishop.attackEmitter->position, {0.53f, 1.98f, -0.65f}));
    EXPECT_TRUE(Equal(bishop.attackEmitter->positionSpread, {0.01f, 0.01f, 0.01f}));
    EXPECT_FALSE(bishop.RunAttack(0.2f, &eye));
    EXPECT_TRUE(Equal(bishop.attackEmitter->position, {-0.52f, 1.98f, -0.65f}));
    EXPECT_TRUE(Equal(bishop.attackEmitter->positionSpread, {0.01f, 0.01f, 0.01f}));

    ChessFigure3D& other = troupe.Place(Player::White, FigureType::Bishop, 5, 0);
    OpenFire(other, true);
    EXPECT_NEAR(AttackTime(other, 0.001f), 1.14f, 0.01f);
}

TEST_F(ShootersTest, AKnightPoursOneStreamDown) {
    ChessFigure3D& knight = troupe.Place(Player::White, FigureType::Knight, 1, 0);
    OpenFire(knight, false);
    EXPECT_FLOAT_EQ(AttackTime(knight, frame), 0.5f + frame);
    EXPECT_THAT(Cues(), ElementsAre(Played("media/knightAttack.wav")));
    EXPECT_TRUE(Equal(knight.attackEmitter->position, {0.0f, 1.0f, 0.0f}));
    EXPECT_TRUE(Equal(knight.attackEmitter->positionSpread, {0.2f, 0.02f, 0.02f}));
}

TEST_F(ShootersTest, AKnightsSecondShotIsSilent) {
    ChessFigure3D& knight = troupe.Place(Player::White, FigureType::Knight, 1, 0);
    OpenFire(knight, true);
    EXPECT_FLOAT_EQ(AttackTime(knight, frame), 2.0f * (0.5f + frame));
    EXPECT_THAT(Cues(), ElementsAre(Played("media/knightAttack.wav")));
    EXPECT_TRUE(Equal(knight.attackEmitter->position, {-0.25f, 1.45f, -0.2f}));
}

TEST_F(ShootersTest, AnAttackThatIsOffIsOverAtOnce) {
    for (const FigureType type : {FigureType::Pawn, FigureType::Rook, FigureType::Knight, FigureType::Bishop,
                                  FigureType::Queen, FigureType::King}) {
        ChessFigure3D& figure = troupe.Place(Player::White, type, 0, 0);
        figure.firstShotPending = true;
        EXPECT_TRUE(figure.RunAttack(0.1f, &eye));
        EXPECT_TRUE(figure.firstShotPending);
    }
    EXPECT_THAT(Cues(), IsEmpty());
}

TEST_F(ShootersTest, AHitPuffsForNearlyHalfASecond) {
    for (const FigureType type :
         {FigureType::Pawn, FigureType::Rook, FigureType::Knight, FigureType::Bishop, FigureType::Queen}) {
        ChessFigure3D& figure = troupe.Place(Player::White, type, 0, 0);
        EXPECT_TRUE(figure.RunDamage(0.1f, &eye));
        figure.damageActive = true;
        float time = frame;
        while (!figure.RunDamage(frame, &eye)) {
            EXPECT_FALSE(figure.damageEmitter->GetActive().empty());
            time += frame;
        }
        EXPECT_FLOAT_EQ(time, 29.0f * frame);  // the first multiple above 0.45
        EXPECT_FALSE(figure.damageActive);
        EXPECT_EQ(figure.effectTimer, 0.0f);
        EXPECT_TRUE(figure.damageEmitter->GetActive().empty());
    }
}

TEST_F(ShootersTest, AHeavyHitRunsTheHeavyPuffsAloneAndEndsBoth) {
    ChessFigure3D& pawn = troupe.Place(Player::White, FigureType::Pawn, 4, 1);
    pawn.damageActive = true;
    pawn.heavyDamageActive = true;
    EXPECT_FALSE(pawn.RunDamage(0.3f, &eye));
    EXPECT_FALSE(pawn.heavyDamageEmitter->GetActive().empty());
    EXPECT_TRUE(pawn.damageEmitter->GetActive().empty());
    EXPECT_TRUE(pawn.RunDamage(0.3f, &eye));
    EXPECT_FALSE(pawn.damageActive);
    EXPECT_FALSE(pawn.heavyDamageActive);
    EXPECT_TRUE(pawn.heavyDamageEmitter->GetActive().empty());
}

TEST_F(ShootersTest, FadingTakesTwoSecondsAndTheShaderForGood) {
    for (const FigureType type : {FigureType::Pawn, FigureType::Rook, FigureType::Knight, FigureType::Bishop,
                                  FigureType::Queen, FigureType::King}) {
        ChessFigure3D& figure = troupe.Place(Player::White, type, 0, 0);
        ASSERT_EQ(figure.GetShader(), &troupe.Light());
        EXPECT_FALSE(figure.FadeOut(0.0f, &eye));
        EXPECT_EQ(figure.GetShader(), nullptr);
        float time = frame;
        while (!figure.FadeOut(frame, &eye)) {
            ASSERT_TRUE(figure.active);
            ASSERT_FLOAT_EQ(figure.GetInstanceMaterial()->GetColor()[3], 1.0f - time / 2.0f);
            time += frame;
        }
        EXPECT_FLOAT_EQ(time, 2.0f);
        EXPECT_FALSE(figure.active);
        EXPECT_EQ(figure.GetInstanceMaterial()->GetColor()[3], 0.0f);
        EXPECT_EQ(figure.GetShader(), nullptr);
    }
}

}  // namespace tolvane::test

#include "figures/King3D.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "assets/ParticleEffect.h"
#include "figures/MixerLog.h"
#include "figures/Troupe.h"

namespace tolvane::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Vertex eye{0.0f, 20.0f, 30.0f};
constexpr float frame = 1.0f / 64.0f;

class King3DTest : public testing::Test {
protected:
    std::vector<Cue> Cues() { return TakeCues(troupe.Sounds()); }

    Troupe troupe;
    King3D& king = troupe.PlaceKing(Player::White, 4, 0);
};

}  // namespace

TEST_F(King3DTest, LandsHisBlowAQuarterOfASecondIntoTheRoundAndEndsAQuarterLater) {
    king.attackActive = true;
    king.firstShotPending = true;
    king.secondShotPending = true;

    float time = 0.0f;
    while (king.secondShotPending) {
        EXPECT_THAT(Cues(), IsEmpty());
        EXPECT_FALSE(king.RunAttack(frame, &eye));
        time += frame;
    }
    EXPECT_FLOAT_EQ(time, 0.25f + frame);
    EXPECT_THAT(Cues(), ElementsAre(Played("media/kingAttack.wav")));

    float rest = frame;
    while (!king.RunAttack(frame, &eye))
        rest += frame;
    EXPECT_FLOAT_EQ(rest, 0.25f + frame);
    EXPECT_FALSE(king.attackActive);
    EXPECT_THAT(Cues(), IsEmpty());
}

TEST_F(King3DTest, WithoutABlowPendingStaysSilent) {
    king.attackActive = true;
    king.firstShotPending = true;
    king.effectTimer = 9.0f;
    EXPECT_FALSE(king.RunAttack(0.2f, &eye));
    EXPECT_TRUE(king.RunAttack(0.2f, &eye));
    EXPECT_THAT(Cues(), IsEmpty());
}

TEST_F(King3DTest, ExplodesForTwoSeconds) {
    EXPECT_TRUE(king.RunDamage(frame, &eye));
    king.heavyDamageActive = true;
    EXPECT_TRUE(king.RunDamage(frame, &eye));

    king.damageActive = true;
    float time = frame;
    while (!king.RunDamage(frame, &eye)) {
        EXPECT_FALSE(king.damageEmitter->GetActive().empty());
        time += frame;
    }
    EXPECT_FLOAT_EQ(time, 2.0f + frame);
    EXPECT_FALSE(king.damageActive);
    EXPECT_EQ(king.effectTimer, 0.0f);
    EXPECT_TRUE(king.damageEmitter->GetActive().empty());
}

TEST_F(King3DTest, SoundsTheAlarmAndTheBlast) {
    king.PlaySelfDestructSound();
    king.PlayExplosionSound();
    EXPECT_THAT(Cues(),
                ElementsAre(Played("media/kingSelfDestructStart.wav"), Played("media/kingExplode.wav")));
}

TEST_F(King3DTest, DiesInSilence) {
    king.PlayDeathSound();
    EXPECT_THAT(Cues(), IsEmpty());
}

}  // namespace tolvane::test

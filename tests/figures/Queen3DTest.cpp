#include "figures/Queen3D.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <set>

#include "assets/Numbers.h"
#include "assets/ParticleEffect3.h"
#include "figures/MixerLog.h"
#include "figures/Troupe.h"

namespace tolvane::test {

namespace {

using testing::ElementsAre;

constexpr Vertex eye{0.0f, 20.0f, 30.0f};

class Queen3DTest : public testing::Test {
protected:
    Troupe troupe;
    Queen3D& queen = troupe.PlaceQueen(Player::White, 3, 0);
};

}  // namespace

TEST_F(Queen3DTest, HidesHerCastUntilHerScene) {
    EXPECT_FALSE(queen.canVisible);
    EXPECT_FALSE(queen.ufoVisible);
    EXPECT_FALSE(queen.canLit);
    EXPECT_FALSE(queen.ufoLit);
    EXPECT_FALSE(queen.beamActive);
    EXPECT_FALSE(queen.glowActive);
    EXPECT_FALSE(queen.engineActive);
    EXPECT_FALSE(queen.canAnimationFinished);
    EXPECT_FALSE(queen.ufoAnimationFinished);
    EXPECT_TRUE(Equal(queen.canPosition, {0.0f, 0.0f, 0.0f}));
    EXPECT_TRUE(Equal(queen.ufoPosition, {0.0f, 10.0f, 0.0f}));
    EXPECT_EQ(queen.cans, troupe.Cans());
    EXPECT_EQ(queen.ufo, &troupe.Ufo());
    EXPECT_EQ(queen.can->GetAnimationName(), "run");
    EXPECT_EQ(queen.can->GetMode(), MD2_AnimationMode::Freeze);
    EXPECT_EQ(queen.ufo->GetAnimationName(), "run");
    EXPECT_EQ(queen.ufo->GetMode(), MD2_AnimationMode::Loop);
    EXPECT_EQ(queen.ufo->speed, 5.0f);
    EXPECT_EQ(queen.canDropList.GetCount(), 2);
}

TEST_F(Queen3DTest, NeverShoots) {
    queen.attackActive = true;
    queen.firstShotPending = true;
    EXPECT_TRUE(queen.RunAttack(0.1f, &eye));
    EXPECT_TRUE(queen.attackActive);
    EXPECT_TRUE(queen.firstShotPending);
}

TEST_F(Queen3DTest, AnimatesCanAndSaucerOnlyWhileTheyAreVisible) {
    queen.can->Animate(0, 0.0f);  // the mesh that its frozen pose still owes
    queen.can->SetAnimation(queen.canStandAnimation);
    queen.Update(0, 0.01f);
    EXPECT_GT(troupe.ModelOf(queen).GetInterpolation(), 0.0f);
    EXPECT_EQ(queen.can->GetInterpolation(), 0.0f);
    EXPECT_EQ(queen.ufo->GetInterpolation(), 0.0f);

    queen.canVisible = true;
    queen.Update(0, 0.01f);
    EXPECT_GT(queen.can->GetInterpolation(), 0.0f);
    EXPECT_EQ(queen.ufo->GetInterpolation(), 0.0f);

    queen.ufoVisible = true;
    queen.Update(0, 0.01f);
    EXPECT_GT(queen.ufo->GetInterpolation(), 0.0f);
    EXPECT_FALSE(queen.canAnimationFinished);
    EXPECT_FALSE(queen.ufoAnimationFinished);

    for (int i = 0; i < 4; ++i)
        queen.Update(0, 0.1f);
    EXPECT_TRUE(queen.canAnimationFinished);
    queen.Update(0, 0.01f);
    EXPECT_FALSE(queen.canAnimationFinished);
}

TEST_F(Queen3DTest, IsBusyFromTheMomentAtWhichSheHasATarget) {
    EXPECT_FALSE(queen.IsFinished());
    queen.SetTarget(3, 4, fieldWidth);
    EXPECT_TRUE(queen.IsFinished());
    EXPECT_FALSE(queen.UpdateEffects(0.1f, &eye));
    EXPECT_TRUE(queen.IsFinished());
}

TEST_F(Queen3DTest, RunsBeamGlowAndJetEachByItsFlag) {
    const auto flying = [this] {
        return std::array{!queen.beamEmitter.GetActive().empty(), !queen.glowEmitter.GetActive().empty(),
                          !queen.engineEmitter->GetActive().empty()};
    };
    queen.UpdateEffects(0.1f, &eye);
    EXPECT_THAT(flying(), ElementsAre(false, false, false));
    queen.beamActive = true;
    queen.UpdateEffects(0.1f, &eye);
    EXPECT_THAT(flying(), ElementsAre(true, false, false));
    queen.glowActive = true;
    queen.UpdateEffects(0.1f, &eye);
    EXPECT_THAT(flying(), ElementsAre(true, true, false));
    queen.engineActive = true;
    queen.UpdateEffects(0.1f, &eye);
    EXPECT_THAT(flying(), ElementsAre(true, true, true));
}

TEST_F(Queen3DTest, TakesEachOfTheCansInTime) {
    std::set<MD2_Instance*> seen;
    for (int i = 0; i < 100; ++i) {
        queen.ChooseCan();
        seen.insert(queen.can);
    }
    EXPECT_EQ(seen, std::set<MD2_Instance*>(troupe.Cans().begin(), troupe.Cans().end()));
}

TEST_F(Queen3DTest, DrawsHerFirstCanWhenSheIsMade) {
    RestartRandom();
    NextRandom();  // 41; the next is 18467, which falls on the fourth of six
    EXPECT_EQ(troupe.PlaceQueen(Player::Black, 3, 7).can, troupe.Cans()[3]);
}

TEST_F(Queen3DTest, HasASoundForEachThingThatHappensInHerScene) {
    queen.StartTransformationSound();
    queen.StopTransformationSound();
    queen.PlayDropCanSound();
    queen.StartUfoSound();
    queen.StopUfoSound();
    queen.PlayUfoBeamSound();
    queen.PlayUfoEngageSound();
    EXPECT_THAT(TakeCues(troupe.Sounds()),
                ElementsAre(Played("media/queenTransformation.wav"),
                            Faded("media/queenTransformation.wav", 500), Played("media/queenDropCan.wav"),
                            Played("media/queenUfo.wav", 60, -1), Faded("media/queenUfo.wav", 3000),
                            Played("media/queenUfoBeam.wav"), Played("media/queenUfoEngage.wav", 90)));
}

}  // namespace tolvane::test

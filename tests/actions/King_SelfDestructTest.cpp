#include "actions/King_SelfDestruct.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "actions/ActionFactory.h"
#include "actions/Scene.h"

namespace tolvane::test {

namespace {

using testing::ElementsAre;

constexpr Vertex eye{0.0f, 20.0f, 30.0f};

class King_SelfDestructTest : public testing::Test {
protected:
    King3D& Mate(Player player) {
        King3D& king = troupe.PlaceKing(player, 4, 0);
        king.SetAction(ActionFactory().CreateSelfDestructAction(&king));
        return king;
    }

    Troupe troupe;
};

}  // namespace

TEST_F(King_SelfDestructTest, SoundsExplodesFadesAndNeverEndsAtEveryPace) {
    for (const Pace& pace : AllPaces())
        for (const Player player : {Player::White, Player::Black}) {
            SCOPED_TRACE(testing::Message() << pace);
            King3D& king = Mate(player);
            Scene scene(troupe, king, nullptr, pace);
            bool exploded = false;
            scene.watch = [&king, &exploded] { exploded = exploded || king.damageActive; };
            while (scene.Seconds() < 20.0f)
                ASSERT_FALSE(scene.PlayFrame());
            EXPECT_TRUE(exploded);
            EXPECT_TRUE(king.IsFinished());
            EXPECT_FALSE(king.active);
            EXPECT_EQ(king.GetShader(), nullptr);
            EXPECT_THAT(TakeCueNames(troupe), ElementsAre("kingSelfDestructStart", "kingExplode"));
        }
}

TEST_F(King_SelfDestructTest, NeverAnswersThatItIsOver) {
    King3D& king = troupe.PlaceKing(Player::White, 4, 0);
    King_SelfDestruct script(&king);
    for (int i = 0; i < 5000; ++i)
        ASSERT_FALSE(script.Step(0.05f, &eye));
}

TEST_F(King_SelfDestructTest, RaisesTheAlarmAfterHalfItsTime) {
    King3D& king = troupe.PlaceKing(Player::White, 4, 0);
    King_SelfDestruct script(&king);
    EXPECT_EQ(troupe.ModelOf(king).GetAnimationName(), "death");
    constexpr float dt = 1.0f / 64.0f;
    int frames = 0;
    std::vector<std::string> cues;
    while (cues.empty() && frames < 1000) {
        script.Step(dt, &eye);
        ++frames;
        cues = TakeCueNames(troupe);
    }
    // The time stands at one frame less than twice as many: 0.3 is between 19 and 20 frames.
    EXPECT_EQ(frames, 11);
    EXPECT_THAT(cues, ElementsAre("kingSelfDestructStart"));

    // From there 3.5 seconds, the frame of the alarm among them.
    frames = 1;
    while (!king.damageActive && frames < 1000) {
        script.Step(dt, &eye);
        ++frames;
    }
    EXPECT_EQ(frames, 225);
    EXPECT_THAT(TakeCueNames(troupe), ElementsAre("kingExplode"));
    EXPECT_EQ(king.GetShader(), &troupe.Light());
    script.Step(dt, &eye);
    EXPECT_EQ(king.GetShader(), nullptr);
}

TEST_F(King_SelfDestructTest, PlaysItsThreeClipsInARow) {
    King3D& king = Mate(Player::Black);
    Scene scene(troupe, king, nullptr, {.frameTime = 1.0f / 60.0f});
    const MD2_Instance& model = troupe.ModelOf(king);
    EXPECT_TRUE(scene.PlayUntil([&model] { return model.GetAnimationName() == "deathII"; }));
    EXPECT_TRUE(scene.PlayUntil([&model] { return model.GetAnimationName() == "deathIII"; }));
}

}  // namespace tolvane::test

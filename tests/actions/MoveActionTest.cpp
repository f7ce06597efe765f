#include "actions/MoveAction.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "actions/ActionFactory.h"
#include "actions/Scene.h"
#include "assets/ParticleEffect3.h"

namespace tolvane::test {

namespace {

using testing::ElementsAre;

struct Way {
    int column;
    int row;
    float whiteTurn;  // degrees added while it goes that way
    float blackTurn;
};

constexpr std::array ways{Way{0, 1, 0, 180},    Way{1, 1, -45, 135}, Way{1, 0, -90, 90},
                          Way{1, -1, -135, 45}, Way{0, -1, 180, 0},  Way{-1, -1, 135, -45},
                          Way{-1, 0, 90, -90},  Way{-1, 1, 45, -135}};

constexpr std::array jumps{Way{1, 2, 0, 0},   Way{2, 1, 0, 0},   Way{2, -1, 0, 0}, Way{1, -2, 0, 0},
                           Way{-1, -2, 0, 0}, Way{-2, -1, 0, 0}, Way{-2, 1, 0, 0}, Way{-1, 2, 0, 0}};

float RestHeading(Player player) {
    return player == Player::White ? 0.0f : 180.0f;
}

class MoveActionTest : public testing::Test {
protected:
    ChessFigure3D& Send(Player player, FigureType type, int columns, int rows) {
        ChessFigure3D& figure = troupe.Place(player, type, 4, 4);
        figure.SetAction(factory.CreateMoveAction(&figure, 4 + columns, 4 + rows, fieldWidth));
        return figure;
    }

    Troupe troupe;
    ActionFactory factory;
};

}  // namespace

TEST_F(MoveActionTest, TurnsWalksAndTurnsBack) {
    ChessFigure3D& bishop = Send(Player::White, FigureType::Bishop, 2, -2);
    const Outcome outcome = Scene(troupe, bishop, nullptr, {.frameTime = 1.0f / 60.0f}).Play();
    EXPECT_EQ(outcome.endings, 1);
    EXPECT_THAT(outcome.cues, ElementsAre("bishopMove", "~bishopMove"));
    ExpectAtRest(bishop, 6, 2, 0.0f);
    EXPECT_EQ(troupe.ModelOf(bishop).GetAnimationName(), "stand");
}

TEST_F(MoveActionTest, EndsInAllEightDirectionsForBothSidesAtEveryPace) {
    constexpr std::array walkers{FigureType::Pawn, FigureType::Rook, FigureType::Bishop, FigureType::King,
                                 FigureType::Queen};
    std::size_t count = 0;
    for (const Pace& pace : AllPaces())
        for (const Player player : {Player::White, Player::Black})
            for (const Way& way : ways) {
                const FigureType type = walkers[count++ % walkers.size()];
                SCOPED_TRACE(testing::Message()
                             << static_cast<int>(type) << " of side " << static_cast<int>(player) << " by "
                             << way.column << ", " << way.row << " at " << pace);
                ChessFigure3D& figure = Send(player, type, way.column, way.row);
                Scene scene(troupe, figure, nullptr, pace);
                const float turned =
                    RestHeading(player) + (player == Player::White ? way.whiteTurn : way.blackTurn);
                scene.watch = [&figure, turned, home = FieldPlace(4, 4),
                               goal = FieldPlace(4 + way.column, 4 + way.row)] {
                    const Vertex& place = *figure.GetPosition();
                    if (NotEqual(place, home) && NotEqual(place, goal)) {
                        EXPECT_EQ(figure.GetRotationY(), turned);
                    }
                };
                EXPECT_EQ(scene.Play().endings, 1);
                ExpectAtRest(figure, 4 + way.column, 4 + way.row, RestHeading(player));
            }
}

TEST_F(MoveActionTest, StraightForwardWalksWithoutATurn) {
    for (const Player player : {Player::White, Player::Black}) {
        const int forward = player == Player::White ? 1 : -1;
        ChessFigure3D& pawn = Send(player, FigureType::Pawn, 0, forward);
        constexpr float dt = 1.0f / 64.0f;
        Scene scene(troupe, pawn, nullptr, {.frameTime = dt});
        scene.watch = [&pawn, player] { EXPECT_EQ(pawn.GetRotationY(), RestHeading(player)); };

        scene.PlayFrame();
        EXPECT_TRUE(Equal(*pawn.GetPosition(), FieldPlace(4, 4)));
        scene.PlayFrame();
        EXPECT_TRUE(NotEqual(*pawn.GetPosition(), FieldPlace(4, 4)));
        EXPECT_TRUE(scene.PlayUntil(
            [&pawn, forward] { return pawn.GetRow() == 4u + static_cast<unsigned int>(forward); }));
        EXPECT_TRUE(scene.PlayFrame());
        ExpectAtRest(pawn, 4, 4 + forward, RestHeading(player));
    }
}

TEST_F(MoveActionTest, ToItsOwnFieldNeverEnds) {
    ChessFigure3D& pawn = Send(Player::White, FigureType::Pawn, 0, 0);
    Scene scene(troupe, pawn, nullptr, {.frameTime = 0.05f});
    for (int i = 0; i < 1000; ++i)
        ASSERT_FALSE(scene.PlayFrame());
    EXPECT_TRUE(pawn.IsFinished());
}

TEST_F(MoveActionTest, RunsOnlyWhileItWalks) {
    ChessFigure3D& rook = Send(Player::White, FigureType::Rook, 1, 0);
    Scene scene(troupe, rook, nullptr, {.frameTime = 1.0f / 64.0f});
    const MD2_Instance& model = troupe.ModelOf(rook);
    EXPECT_TRUE(scene.PlayUntil([&] { return rook.GetRotationY() == -90.0f; }));
    EXPECT_EQ(model.GetAnimationName(), "stand");
    scene.PlayFrame();
    EXPECT_EQ(model.GetAnimationName(), "run");
    EXPECT_TRUE(scene.PlayUntil([&] { return rook.GetColumn() == 5; }));
    EXPECT_EQ(model.GetAnimationName(), "stand");
    EXPECT_EQ(rook.GetRotationY(), -90.0f);
}

// The queen

TEST_F(MoveActionTest, AQueenTrailsHerJetWhileSheFlies) {
    Queen3D& queen = static_cast<Queen3D&>(Send(Player::Black, FigureType::Queen, -3, -3));
    Scene scene(troupe, queen, nullptr, {.frameTime = 1.0f / 60.0f});
    scene.watch = [&queen] {
        const Vertex& place = *queen.GetPosition();
        const bool flies = queen.GetColumn() == 4 && NotEqual(place, FieldPlace(4, 4));
        EXPECT_EQ(queen.engineActive, flies);
        if (!flies) {
            EXPECT_TRUE(queen.engineEmitter->GetActive().empty());
        }
    };
    const Outcome outcome = scene.Play();
    EXPECT_EQ(outcome.endings, 1);
    EXPECT_THAT(outcome.cues, ElementsAre("queenMove", "~queenMove"));
    ExpectAtRest(queen, 1, 1, 180.0f);
    EXPECT_EQ(troupe.ModelOf(queen).GetAnimationName(), "stand");
}

TEST_F(MoveActionTest, AQueensJetIsOnButEmptyBeforeSheHasMoved) {
    Queen3D& queen = static_cast<Queen3D&>(Send(Player::White, FigureType::Queen, 0, 1));
    Scene scene(troupe, queen, nullptr, {.frameTime = 0.02f});
    scene.PlayFrame();
    EXPECT_FALSE(queen.engineActive);
    scene.PlayFrame();
    EXPECT_TRUE(queen.engineActive);
    scene.PlayFrame();
    EXPECT_FALSE(queen.engineEmitter->GetActive().empty());
}

// The knight

TEST_F(MoveActionTest, AKnightJumpsToAllEightFieldsAtEveryPaceAndNeverTurns) {
    for (const Pace& pace : AllPaces())
        for (const Way& jump : jumps)
            for (const Player player : {Player::White, Player::Black}) {
                SCOPED_TRACE(testing::Message() << jump.column << ", " << jump.row << " at " << pace);
                ChessFigure3D& knight = Send(player, FigureType::Knight, jump.column, jump.row);
                Scene scene(troupe, knight, nullptr, pace);
                scene.watch = [&knight, player] { EXPECT_EQ(knight.GetRotationY(), RestHeading(player)); };
                const Outcome outcome = scene.Play();
                EXPECT_EQ(outcome.endings, 1);
                EXPECT_THAT(outcome.cues, ElementsAre("knightStartEnd", "knightMoveShort", "~knightMoveShort",
                                                      "knightStartEnd"));
                ExpectAtRest(knight, 4 + jump.column, 4 + jump.row, RestHeading(player));
            }
}

TEST_F(MoveActionTest, AKnightRisesFliesLevelAndDescends) {
    ChessFigure3D& knight = Send(Player::White, FigureType::Knight, 1, 2);
    Scene scene(troupe, knight, nullptr, {.frameTime = 1.0f / 60.0f});
    const MD2_Instance& model = troupe.ModelOf(knight);
    scene.PlayFrame();
    EXPECT_EQ(model.GetAnimationName(), "run_start");
    EXPECT_TRUE(scene.PlayUntil([&] { return knight.GetPosition()->y == 2.7f; }));
    EXPECT_NEAR(scene.Seconds(), 1.95f, 0.05f);
    EXPECT_EQ(knight.GetPosition()->x, FieldPlace(4, 4).x);
    const float risen = scene.Seconds();
    EXPECT_TRUE(scene.PlayUntil([&] { return knight.GetRow() == 6; }));
    EXPECT_EQ(knight.GetPosition()->y, 2.7f);
    EXPECT_NEAR(scene.Seconds() - risen, 3.7f, 0.05f);
    EXPECT_EQ(model.GetAnimationName(), "run");
    const float arrived = scene.Seconds();
    scene.watch = [&] {
        if (knight.IsFinished()) {
            EXPECT_EQ(model.GetAnimationName(), "run");
        }
    };
    const Outcome outcome = scene.Play();
    EXPECT_NEAR(outcome.seconds - arrived, 3.85f, 0.05f);
    EXPECT_EQ(knight.GetPosition()->y, 0.0f);
    EXPECT_EQ(model.GetAnimationName(), "stand");
}

}  // namespace tolvane::test

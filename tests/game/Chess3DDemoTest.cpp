#include <array>

#include "game/GameTest.h"

namespace tolvane::test {
namespace {

using ::testing::AnyOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class Demo : public GameTest {
protected:
    void Add(int sourceX, int sourceY, int targetX, int targetY) {
        game->demoMoves.Add({{sourceX, sourceY}, {targetX, targetY}});
    }
};

TEST_F(Demo, PlaysAWholeGameByItself) {
    // The positions after each of its half-moves.
    constexpr std::array positions{
        "rnbqkbnr/pppppppp/8/8/4P3/8/PPPP1PPP/RNBQKBNR",
        "rnbqkb1r/pppppppp/7n/8/4P3/8/PPPP1PPP/RNBQKBNR",
        "rnbqkb1r/pppppppp/7n/8/4P3/3B4/PPPP1PPP/RNBQK1NR",
        "rnbqkb1r/ppppp1pp/7n/5p2/4P3/3B4/PPPP1PPP/RNBQK1NR",
        "rnbqkb1r/ppppp1pp/7n/5P2/8/3B4/PPPP1PPP/RNBQK1NR",
        "rnbqkb1r/ppppp1pp/8/5n2/8/3B4/PPPP1PPP/RNBQK1NR",
        "rnbqkb1r/ppppp1pp/8/5B2/8/8/PPPP1PPP/RNBQK1NR",
        "rnbqkb1r/pppp2pp/4p3/5B2/8/8/PPPP1PPP/RNBQK1NR",
        "rnbqkb1r/pppp2pp/4p3/8/8/7B/PPPP1PPP/RNBQK1NR",
        "rnbqk2r/pppp2pp/3bp3/8/8/7B/PPPP1PPP/RNBQK1NR",
        "rnbqk2r/pppp2pp/3bp3/8/8/5N1B/PPPP1PPP/RNBQK2R",
        "rnbq1rk1/pppp2pp/3bp3/8/8/5N1B/PPPP1PPP/RNBQK2R",
        "rnbq1rk1/pppp2pp/3bp3/8/3P4/5N1B/PPP2PPP/RNBQK2R",
        "rnb2rk1/pppp2pp/3bpq2/8/3P4/5N1B/PPP2PPP/RNBQK2R",
        "rnb2rk1/pppp2pp/3bpq2/6B1/3P4/5N1B/PPP2PPP/RN1QK2R",
        "rnb2rk1/pppp2pp/3bp1q1/6B1/3P4/5N1B/PPP2PPP/RN1QK2R",
        "rnb2rk1/pppp2pp/3bp1q1/6B1/3P4/2N2N1B/PPP2PPP/R2QK2R",
        "r1b2rk1/pppp2pp/2nbp1q1/6B1/3P4/2N2N1B/PPP2PPP/R2QK2R",
        "r1b2rk1/pppp2pp/2nbp1q1/6B1/3P4/2N2N1B/PPPQ1PPP/R3K2R",
        "r1b2rk1/p1pp2pp/1pnbp1q1/6B1/3P4/2N2N1B/PPPQ1PPP/R3K2R",
        "r1b2rk1/p1pp2pp/1pnbp1q1/6B1/3P4/2N2N1B/PPPQ1PPP/2KR3R",
    };
    static_assert(positions.size() == 21);

    Start();
    Press(SDLK_SPACE);
    EXPECT_FALSE(game->demoAllowed);
    int fights = 0;
    for (const char* const position : positions) {
        EXPECT_TRUE(game->demoRunning);
        ChessFigure3D* const victim = game->capturedField ? FigureAt("f5") : nullptr;
        EXPECT_EQ(RulesPlacement(), position);
        EXPECT_EQ(Picking(), "mouse off, grid hidden");
        // The next half-move begins in the frame in which this one ends.
        const Player mover = game->currentPlayer;
        PlayOut([&] { return game->currentPlayer != mover; });
        if (victim != nullptr) {
            EXPECT_FALSE(victim->active) << position;  // it has lost its fight, and faded
            ++fights;
        }
    }
    EXPECT_EQ(fights, 3);
    EXPECT_FALSE(AnyoneBusy());
    EXPECT_EQ(ScenePlacement(), positions.back());
    EXPECT_FALSE(game->demoRunning);

    // At its end the mouse works, but there is no grid to click on.
    EXPECT_EQ(Picking(), "mouse on, grid hidden");
    EXPECT_EQ(game->currentPlayer, Player::Black);
    EXPECT_FALSE(game->demoAllowed);
    Press(SDLK_SPACE);
    EXPECT_FALSE(game->demoRunning);
    EXPECT_FALSE(AnyoneBusy());

    // Black can take a figure by clicking on it, and that brings the grid back.
    ClickFigure("d6");
    ClickFigure("h2");
    PlayOut();
    EXPECT_EQ(ScenePlacement(), "r1b2rk1/p1pp2pp/1pn1p1q1/6B1/3P4/2N2N1B/PPPQ1PPb/2KR3R");
    EXPECT_EQ(Picking(), "mouse on, grid visible");
}

TEST_F(Demo, StartsWithTheFirstMoveAtOnce) {
    Start();
    Press(SDLK_SPACE);
    EXPECT_TRUE(game->demoRunning);
    EXPECT_TRUE(FigureAt("e2")->IsFinished());
    EXPECT_EQ(Marked(1), "e2");
    EXPECT_EQ(Marked(3), "e4");
    EXPECT_EQ(TakeSounds().size(), 2u);  // the voices, as in play
}

TEST_F(Demo, IsPreventedByAnyClick) {
    for (const char* const field : {"e4", "e7", "e2"}) {
        Start();
        Click(field);
        Press(SDLK_SPACE);
        EXPECT_FALSE(game->demoRunning) << field;
        EXPECT_FALSE(game->demoMoves.HasNext()) << field;
        EXPECT_FALSE(AnyoneBusy()) << field;
    }
}

TEST_F(Demo, DoesNotStartTwice) {
    Start();
    Press(SDLK_SPACE);
    Press(SDLK_SPACE);
    int moves = 0;
    while (game->demoMoves.HasNext()) {
        game->demoMoves.Next();
        ++moves;
    }
    EXPECT_EQ(moves, 20);
}

TEST_F(Demo, TellsAndSoundsACheckAsInPlay) {
    Start("4k3/8/8/8/8/8/8/R3K3");
    Add(0, 0, 0, 7);
    Add(4, 7, 4, 6);
    game->demoRunning = true;
    game->PlayNextDemoMove();
    PlayOut([this] { return game->currentPlayer == Player::Black; });
    EXPECT_EQ(CheckText(), "Black is CHECK!");
    EXPECT_THAT(TakeSounds(), ::testing::Contains(::testing::Field(
                                  &PlayedSound::path, AnyOf("media/check0.wav", "media/check1.wav"))));
    EXPECT_TRUE(FigureAt("e8")->IsFinished());
    PlayOut();
    EXPECT_EQ(CheckText(), "");
    EXPECT_FALSE(game->demoRunning);
}

TEST_F(Demo, StopsAtAMoveThatIsRefused) {
    Start("k3r3/8/8/8/8/8/4R3/4K3");
    Add(4, 1, 0, 1);
    Add(4, 7, 4, 1);
    game->demoRunning = true;
    EXPECT_THAT(Console([this] { game->PlayNextDemoMove(); }), HasSubstr("The King is Check! MAIN"));
    EXPECT_EQ(Picking(), "mouse on, grid visible");
    EXPECT_FALSE(AnyoneBusy());
    EXPECT_TRUE(game->demoMoves.HasNext());
}

}  // namespace
}  // namespace tolvane::test

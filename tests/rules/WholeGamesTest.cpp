#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <memory>

#include "assets/Numbers.h"
#include "rules/ChessGame.h"
#include "rules/FigureOn.h"
#include "rules/KingMove.h"
#include "rules/Position.h"

namespace tolvane {
namespace {

constexpr const char* startPosition = R"(
    r n b q k b n r
    p p p p p p p p
    . . . . . . . .
    . . . . . . . .
    . . . . . . . .
    . . . . . . . .
    P P P P P P P P
    R N B Q K B N R
)";

TEST(WholeGames, FoolsMate) {
    LaidGame laid(startPosition);
    PlayAll(laid.game, "f2-f3 e7-e5 g2-g4");
    const MoveResult result = Play(laid.game, "d8", "h4");
    EXPECT_EQ(result.CheckedPlayer(), Player::White);
    EXPECT_EQ(result.MatedPlayer(), Player::White);
    EXPECT_EQ(Names(result.attackers), "qh4");
    EXPECT_EQ(Names(result.mateList), "qh4");  // on f2, the one field beside the king that is not its own
    EXPECT_EQ(NameOf(laid.board->GetMatedKing()), "Ke1");
    EXPECT_EQ(Refusal([&] { Play(laid.game, "a2", "a3"); }), "InvalidMoveException: The King is Check! MAIN");
}

// The bishop that guards the queen is not seen, so the king seems able to take her: a check without a way
// out, and not a mate.
TEST(WholeGames, ScholarsMateIsACheckWithoutAWayOut) {
    LaidGame laid(startPosition);
    PlayAll(laid.game, "e2-e4 e7-e5 f1-c4 b8-c6 d1-h5 g8-f6");
    const MoveResult result = Play(laid.game, "h5", "f7");
    EXPECT_EQ(result.CheckedPlayer(), Player::Black);
    EXPECT_EQ(result.MatedPlayer(), Player::NoPlayer);
    EXPECT_EQ(Names(result.attackers), "Qf7");
    EXPECT_EQ(result.mateList, nullptr);
    EXPECT_EQ(Reachable(laid.game, "e8"), "f7");

    const std::string position = Picture(laid.board);
    const FigureList black = *laid.board->GetFigures(Player::Black);
    int tried = 0;
    for (const ChessFigure* figure : black) {
        const std::string source = NameOf(figure->GetX(), figure->GetY());
        const OwnedCoordinates targets(laid.game.ReachableFields(figure->GetX(), figure->GetY()));
        for (const Coordinate* target : *targets) {
            ++tried;
            EXPECT_EQ(Refusal([&] { Play(laid.game, source, NameOf(target->GetX(), target->GetY())); }),
                      "InvalidMoveException: The King is Check! MAIN")
                << source;
            EXPECT_EQ(Picture(laid.board), position);
        }
    }
    EXPECT_GT(tried, 20);
}

TEST(WholeGames, DemoOfTwentyOneHalfMoves) {
    LaidGame laid(startPosition);
    PlayAll(laid.game,
            "e2-e4 g8-h6 f1-d3 f7-f5 e4-f5 h6-f5 d3-f5 e7-e6 f5-h3 f8-d6 g1-f3 e8-g8 d2-d4 d8-f6 c1-g5 "
            "f6-g6 b1-c3 b8-c6 d1-d2 b7-b6 e1-c1");
    EXPECT_EQ(Picture(laid.board), WithoutBlanks(R"(
        r . b . . r k .
        p . p p . . p p
        . p n b p . q .
        . . . . . . B .
        . . . P . . . .
        . . N . . N . B
        P P P Q . P P P
        . . K R . . . R
    )"));
    EXPECT_EQ(Names(laid.board->GetCaptured()), "pf5 Pf5 nf5");
    EXPECT_EQ(laid.game.GetHistory().size(), 22u);
    EXPECT_EQ(laid.game.GetHistory().back().GetNumber(), 21);
    EXPECT_EQ(NameOf(laid.board->GetCastlingRook()), "Rd1");
}

TEST(WholeGames, CastlingToAllFourSides) {
    struct Row {
        const char* moves;
        const char* king;
        const char* target;
        const char* rook;
    };
    const Row rows[] = {
        {"g1-f3 a7-a6 g2-g3 a6-a5 f1-g2 a5-a4", "e1", "g1", "Rf1"},
        {"b1-c3 h7-h6 d2-d4 h6-h5 c1-f4 h5-h4 d1-d2 g7-g6", "e1", "c1", "Rd1"},
        {"a2-a3 g8-f6 a3-a4 g7-g6 a4-a5 f8-g7 h2-h3", "e8", "g8", "rf8"},
        {"h2-h3 b8-c6 h3-h4 d7-d5 g2-g3 c8-f5 a2-a3 d8-d7 a3-a4", "e8", "c8", "rd8"},
    };
    for (const Row& row : rows) {
        LaidGame laid(startPosition);
        PlayAll(laid.game, row.moves);
        EXPECT_NE(Reachable(laid.game, row.king).find(row.target), std::string::npos);
        const MoveResult result = Play(laid.game, row.king, row.target);
        EXPECT_EQ(NameOf(result.castlingRook), row.rook);
        EXPECT_EQ(result.captured, nullptr);
        EXPECT_EQ(On(laid.board, row.target)->GetType(), FigureType::King);
        EXPECT_EQ(laid.game.GetHistory().back().GetFigure(), On(laid.board, row.target));
    }
}

TEST(WholeGames, PromotionToEachFigure) {
    for (const FigureType type :
         {FigureType::Queen, FigureType::Rook, FigureType::Knight, FigureType::Bishop}) {
        LaidGame laid(startPosition);
        PlayAll(laid.game, "h2-h4 g7-g5 h4-g5 h7-h6 g5-h6 b8-c6 h6-h7 c6-e5");
        const MoveResult capture = Play(laid.game, "h7", "g8");
        EXPECT_EQ(NameOf(capture.captured), "ng8");
        EXPECT_EQ(NameOf(capture.promotionPawn), "Pg8");
        laid.game.PromotePawn(type);
        ChessFigure* promoted = On(laid.board, "g8");
        EXPECT_EQ(promoted->GetType(), type);
        EXPECT_EQ(promoted->GetPlayer(), Player::White);
        EXPECT_EQ(laid.board->GetFigures(Player::White)->back(), promoted);
        EXPECT_EQ(laid.board->GetFigures(Player::White)->size(), 16u);
        EXPECT_EQ(laid.board->GetFigures(Player::Black)->size(), 13u);
        const MoveResult answer = Play(laid.game, "h8", "g8");
        EXPECT_EQ(answer.captured, promoted);
        EXPECT_FALSE(promoted->IsAlive());
    }
}

// A player who picks figures and fields at random.
class RandomPlayer {
public:
    RandomPlayer() { RestartRandom(); }

    // A figure of that side and one of the fields it can be picked to go to, as "e2-e4"; empty when the
    // figure that was picked has nowhere to go.
    std::string Choose(ChessGame& game, FigureList& figures) {
        const ChessFigure* figure = figures[RandomInRange(0, static_cast<int>(figures.size()) - 1)];
        const OwnedCoordinates targets(game.ReachableFields(figure->GetX(), figure->GetY()));
        if (targets->empty()) {
            return "";
        }
        // By name, since the order of a list means nothing.
        const std::string names = Names(targets) + " ";
        const int choice = RandomInRange(0, static_cast<int>(targets->size()) - 1);
        return NameOf(figure->GetX(), figure->GetY()) + "-" + names.substr(3 * choice, 2);
    }
};

TEST(WholeGames, HoldTogetherOverManyRandomMoves) {
    RandomPlayer chance;
    int played = 0;
    int captures = 0;
    int promotions = 0;
    int refused = 0;
    for (int round = 0; round < 10; ++round) {
        LaidGame laid(startPosition);
        Player player = Player::White;
        for (int turn = 0; turn < 300; ++turn) {
            const std::string move = chance.Choose(laid.game, *laid.board->GetFigures(player));
            if (move.empty()) {
                continue;
            }
            const std::string source = move.substr(0, 2);
            const std::string target = move.substr(3);
            const std::string position = Picture(laid.board);
            ChessFigure* mover = On(laid.board, source);
            MoveResult result;
            const std::string refusal = Refusal([&] { result = Play(laid.game, source, target); });
            if (refusal != "nothing") {
                ASSERT_EQ(refusal, "InvalidMoveException: The King is Check! MAIN") << move << "\n"
                                                                                    << position;
                ++refused;
                if (laid.board->GetDoubleStepPawn() != nullptr || Picture(laid.board) != position) {
                    break;  // a candidate that never moved, or one that came back on another field
                }
                continue;
            }
            ++played;
            ASSERT_EQ(On(laid.board, target), mover);
            ASSERT_EQ(FigureOn(laid.board, At(source).GetX(), At(source).GetY()), nullptr);
            King* king = laid.board->GetKing(player);
            ASSERT_TRUE(KingMove().Attackers(laid.board, king, king->GetX(), king->GetY())->empty())
                << Picture(laid.board);
            ASSERT_TRUE(result.CheckedPlayer() != player && result.MatedPlayer() != player);
            captures += result.captured != nullptr ? 1 : 0;
            if (result.promotionPawn != nullptr) {
                ++promotions;
                laid.game.PromotePawn(FigureType::Queen);
            }
            std::size_t standing = 0;
            for (const Player side : {Player::White, Player::Black}) {
                for (ChessFigure* figure : *laid.board->GetFigures(side)) {
                    ASSERT_EQ(FigureOn(laid.board, figure->GetX(), figure->GetY()), figure);
                    ASSERT_TRUE(figure->IsAlive());
                    ++standing;
                }
            }
            const std::string picture = Picture(laid.board);
            ASSERT_EQ(static_cast<std::size_t>(std::count_if(picture.begin(), picture.end(), isalpha)),
                      standing);
            player = Opponent(player);
        }
    }
    EXPECT_GT(played, 1000);
    EXPECT_GT(captures, 100);
    EXPECT_GT(promotions, 0);
    EXPECT_GT(refused, 10);
}

}  // namespace
}  // namespace tolvane

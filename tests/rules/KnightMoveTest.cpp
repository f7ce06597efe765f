#include "rules/KnightMove.h"

#include <gtest/gtest.h>

#include "rules/Position.h"

namespace tolvane {
namespace {

constexpr const char* position = R"(
    k . . . . . . .
    . . . . . . . .
    . . p . P . . .
    . . n p n . . .
    . . P N P . . .
    . . P P P . . .
    . . . . . . . .
    K . . . . . . N
)";

TEST(KnightMove, JumpsOverWhateverStandsBetween) {
    const auto board = Lay(position);
    ChessFigure* knight = On(board.get(), "d4");
    EXPECT_EQ(Names(KnightMove().ReachableFields(board.get(), knight)), "b3 b5 c2 c6 e2 f3 f5");
    EXPECT_TRUE(KnightMove().IsAllowed(board.get(), knight, 5, 4));
    EXPECT_EQ(KnightMove().Execute(board.get(), knight, 5, 4), nullptr);
    EXPECT_EQ(NameOf(On(board.get(), "f5")), "Nf5");
}

TEST(KnightMove, StaysOnTheBoard) {
    const auto board = Lay(position);
    EXPECT_EQ(Names(KnightMove().ReachableFields(board.get(), On(board.get(), "h1"))), "f2 g3");
    ChessBoard start(true);
    EXPECT_EQ(Names(KnightMove().ReachableFields(&start, On(&start, "b1"))), "a3 c3");
    EXPECT_EQ(Names(KnightMove().ReachableFields(&start, On(&start, "g8"))), "f6 h6");
}

TEST(KnightMove, AnswersWhatItCaptures) {
    const auto board = Lay(position);
    ChessFigure* victim = On(board.get(), "c6");
    EXPECT_EQ(KnightMove().Validate(board.get(), On(board.get(), "d4"), 2, 5), victim);
    EXPECT_TRUE(victim->IsAlive());
    EXPECT_EQ(KnightMove().Execute(board.get(), On(board.get(), "d4"), 2, 5), victim);
    EXPECT_FALSE(victim->IsAlive());
}

TEST(KnightMove, IsAllowedExactlyWhereItReaches) {
    const auto board = Lay(position);
    ChessFigure* knight = On(board.get(), "d4");
    const std::string reachable = Names(KnightMove().ReachableFields(board.get(), knight));
    for (int x = 0; x < 8; ++x) {
        for (int y = 0; y < 8; ++y) {
            const bool listed = reachable.find(NameOf(x, y)) != std::string::npos;
            EXPECT_EQ(KnightMove().IsAllowed(board.get(), knight, x, y), listed) << NameOf(x, y);
        }
    }
}

TEST(KnightMove, RefusesAndLeavesTheBoardUntouched) {
    struct Row {
        const char* knight;
        int x;
        int y;
        const char* refusal;
    };
    const Row rows[] = {
        {"d4", 3, 3, "InvalidMoveException: This Move is not Allowed!"},
        {"d4", 3, 5, "InvalidMoveException: This Move is not Allowed!"},
        {"d4", 5, 5, "InvalidMoveException: This Move is not Allowed!"},
        {"d4", 4, 5, "InvalidMoveException: This Move is not Allowed!"},  // an own pawn
        {"d4", 9, 4, "InvalidParameterException: Coordinates are out of bound!"},
        {"d4", -1, 4, "InvalidParameterException: Coordinates are out of bound!"},
        {"d4", 5, 9, "InvalidParameterException: Coordinates are out of bound!"},
        {"h1", 8, 2, "InvalidParameterException: Coordinate(s) are out of bound!"},
        {"h1", 6, -1, "InvalidParameterException: Coordinates are out of bound!"},
        {"d4", 8, 3, "InvalidMoveException: This Move is not Allowed!"},
    };
    const auto board = Lay(position);
    const std::string before = Snapshot(board.get());
    for (const Row& row : rows) {
        ChessFigure* knight = On(board.get(), row.knight);
        EXPECT_EQ(Refusal([&] { KnightMove().Execute(board.get(), knight, row.x, row.y); }), row.refusal)
            << row.x << "," << row.y;
        EXPECT_FALSE(KnightMove().IsAllowed(board.get(), knight, row.x, row.y));
        EXPECT_EQ(Snapshot(board.get()), before);
    }
}

}  // namespace
}  // namespace tolvane

#include "rules/BishopMove.h"

#include <gtest/gtest.h>

#include "rules/Position.h"

namespace tolvane {
namespace {

constexpr const char* position = R"(
    . . . . . . . k
    . . . . . . . .
    . p . . . . . .
    . . . . . . . .
    . . . B . . . .
    . . . . . . . .
    . . . . . P . .
    K . . . . . . .
)";

TEST(BishopMove, PlaysAlongItsDiagonals) {
    const auto board = Lay(position);
    ChessFigure* bishop = On(board.get(), "d4");
    EXPECT_EQ(Names(BishopMove().ReachableFields(board.get(), bishop)), "b2 b6 c3 c5 e3 e5 f6 g7 h8");
    EXPECT_TRUE(BishopMove().IsAllowed(board.get(), bishop, 6, 6));
    EXPECT_EQ(BishopMove().Execute(board.get(), bishop, 6, 6), nullptr);
    EXPECT_EQ(NameOf(On(board.get(), "g7")), "Bg7");
}

TEST(BishopMove, AnswersWhatItCaptures) {
    const auto board = Lay(position);
    ChessFigure* victim = On(board.get(), "b6");
    EXPECT_EQ(BishopMove().Execute(board.get(), On(board.get(), "d4"), 1, 5), victim);
    EXPECT_EQ(Names(board->GetCaptured()), "pb6");
    EXPECT_EQ(NameOf(On(board.get(), "b6")), "Bb6");
}

TEST(BishopMove, RefusesAndLeavesTheBoardUntouched) {
    struct Row {
        int x;
        int y;
        const char* refusal;
    };
    const Row rows[] = {
        {3, 5, "InvalidMoveTypeException: This is not a DIAGONAL move!"},  // straight
        {4, 5, "InvalidMoveTypeException: This is not a DIAGONAL move!"},  // like a knight
        {0, 6, "InvalidMoveException: This Move is not Allowed! DIAGONAL +1+"},
        {6, 0, "InvalidMoveException: This Move is not Allowed! DIAGONAL +1+"},
        {5, 1, "InvalidMoveException: This Move is not Allowed! DIAGONAL 2"},
        {3, 3, "InvalidMoveException: This Move is not Allowed! DIAGONAL 2"},  // its own field
        {9, 9, "InvalidParameterException: Coordinates are out of bound!"},
        {-1, 7, "InvalidParameterException: Coordinates are out of bound!"},
        {8, 8, "InvalidMoveException: This Move is not Allowed! DIAGONAL +1+"},  // past the king on h8
    };
    const auto board = Lay(position);
    const std::string before = Snapshot(board.get());
    ChessFigure* bishop = On(board.get(), "d4");
    for (const Row& row : rows) {
        EXPECT_EQ(Refusal([&] { BishopMove().Execute(board.get(), bishop, row.x, row.y); }), row.refusal)
            << row.x << "," << row.y;
        EXPECT_FALSE(BishopMove().IsAllowed(board.get(), bishop, row.x, row.y)) << row.x << "," << row.y;
        EXPECT_EQ(Snapshot(board.get()), before);
    }
}

TEST(BishopMove, EndsAtTheBoardOnAFreeDiagonal) {
    const auto board = Lay(R"(
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        B . . . . . . .
    )");
    EXPECT_EQ(Refusal([&] { BishopMove().Execute(board.get(), On(board.get(), "a1"), 8, 8); }),
              "InvalidParameterException: Coordinate(s) are out of bound!");
    EXPECT_FALSE(BishopMove().IsAllowed(board.get(), On(board.get(), "a1"), 8, 8));
}

TEST(BishopMove, DoesNotMindAPin) {
    const auto board = Lay(R"(
        . . . . r . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . B . . .
        . . . . . . . .
        . . . . K . . .
    )");
    EXPECT_EQ(Names(BishopMove().ReachableFields(board.get(), On(board.get(), "e3"))),
              "a7 b6 c1 c5 d2 d4 f2 f4 g1 g5 h6");
    EXPECT_EQ(BishopMove().Execute(board.get(), On(board.get(), "e3"), 0, 6), nullptr);
    EXPECT_EQ(NameOf(On(board.get(), "a7")), "Ba7");
}

}  // namespace
}  // namespace tolvane

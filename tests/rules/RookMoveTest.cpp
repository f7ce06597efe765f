#include "rules/RookMove.h"

#include <gtest/gtest.h>

#include "rules/Position.h"

namespace tolvane {
namespace {

constexpr const char* position = R"(
    . . . n . . . k
    . . . . . . . .
    . . . . . . . .
    . . . . . . . .
    . p . R . . . P
    . . . . . . . .
    . . . . . . . .
    K . . . . . . .
)";

TEST(RookMove, PlaysAlongRowAndColumn) {
    const auto board = Lay(position);
    ChessFigure* rook = On(board.get(), "d4");
    EXPECT_EQ(Names(RookMove().ReachableFields(board.get(), rook)), "b4 c4 d1 d2 d3 d5 d6 d7 d8 e4 f4 g4");
    EXPECT_TRUE(RookMove().IsAllowed(board.get(), rook, 3, 6));
    EXPECT_TRUE(RookMove().IsAllowed(board.get(), rook, 5, 3));
    EXPECT_EQ(RookMove().Execute(board.get(), rook, 5, 3), nullptr);
    EXPECT_EQ(RookMove().Execute(board.get(), rook, 5, 6), nullptr);
    EXPECT_EQ(NameOf(On(board.get(), "f7")), "Rf7");
}

TEST(RookMove, AnswersWhatItCaptures) {
    for (const char* target : {"b4", "d8"}) {
        const auto board = Lay(position);
        ChessFigure* victim = On(board.get(), target);
        const Coordinate place = At(target);
        EXPECT_TRUE(RookMove().IsAllowed(board.get(), On(board.get(), "d4"), place.GetX(), place.GetY()));
        EXPECT_EQ(RookMove().Execute(board.get(), On(board.get(), "d4"), place.GetX(), place.GetY()), victim);
        EXPECT_FALSE(victim->IsAlive());
        EXPECT_EQ(NameOf(On(board.get(), target)), "R" + std::string(target));
    }
}

TEST(RookMove, RefusesAndLeavesTheBoardUntouched) {
    struct Row {
        int x;
        int y;
        const char* refusal;
    };
    const Row rows[] = {
        {4, 5, "InvalidMoveException: This Move is not Allowed!"},  // like a knight
        {5, 5, "InvalidMoveException: This Move is not Allowed!"},  // like a bishop
        {0, 3, "InvalidMoveException: This Move is not Allowed! CHESSMOVE_H_A"},
        {7, 3, "InvalidMoveException: This Move is not Allowed! DIAGONAL 2"},
        {3, 3, "InvalidMoveException: This Move is not Allowed! DIAGONAL 2"},  // its own field
        {8, 3, "InvalidMoveException: This Move is not Allowed! CHESSMOVE_H_A"},
        {3, 8, "InvalidMoveException: This Move is not Allowed! CHESSMOVE_V_A"},
        {3, 9, "InvalidParameterException: Coordinates are out of bound!"},
        {-1, 3, "InvalidParameterException: Coordinates are out of bound!"},
        {8, 4, "InvalidMoveException: This Move is not Allowed!"},
    };
    const auto board = Lay(position);
    const std::string before = Snapshot(board.get());
    ChessFigure* rook = On(board.get(), "d4");
    for (const Row& row : rows) {
        EXPECT_EQ(Refusal([&] { RookMove().Execute(board.get(), rook, row.x, row.y); }), row.refusal)
            << row.x << "," << row.y;
        EXPECT_FALSE(RookMove().IsAllowed(board.get(), rook, row.x, row.y)) << row.x << "," << row.y;
        EXPECT_EQ(Snapshot(board.get()), before);
    }
}

TEST(RookMove, DoesNotPassAnEnemyInItsColumn) {
    const auto board = Lay(R"(
        . . . . . . . .
        . . . . . . . .
        b . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        R . . . . . . .
    )");
    ChessFigure* rook = On(board.get(), "a1");
    EXPECT_EQ(Refusal([&] { RookMove().Execute(board.get(), rook, 0, 7); }),
              "InvalidMoveException: This Move is not Allowed! CHESSMOVE_V_A");
    EXPECT_FALSE(RookMove().IsAllowed(board.get(), rook, 0, 7));
    EXPECT_TRUE(RookMove().IsAllowed(board.get(), rook, 0, 5));
}

TEST(RookMove, EndsAtTheBoardOnAFreeLine) {
    const auto board = Lay(R"(
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        R . . . . . . .
    )");
    ChessFigure* rook = On(board.get(), "a1");
    for (const auto& [x, y] : {std::pair(8, 0), {0, 8}}) {
        EXPECT_EQ(Refusal([&, column = x, row = y] { RookMove().Execute(board.get(), rook, column, row); }),
                  "InvalidParameterException: Coordinate(s) are out of bound!");
        EXPECT_FALSE(RookMove().IsAllowed(board.get(), rook, x, y));
    }
}

TEST(RookMove, IsNotAllowedOntoItsOwnColour) {
    const auto board = Lay(position);
    EXPECT_FALSE(RookMove().IsAllowed(board.get(), On(board.get(), "d4"), 7, 3));
}

}  // namespace
}  // namespace tolvane

#include "rules/Board.h"

#include <gtest/gtest.h>

#include "rules/Knight.h"
#include "rules/Position.h"

namespace tolvane {
namespace {

TEST(Board, KeepsTheFieldsThatAreSet) {
    Board board(8, 8);
    Knight knight(6, 2, true, Player::White);
    board.SetField(Field(6, 2, &knight));
    EXPECT_EQ(board.FieldAt(6, 2).GetElement(), &knight);
    EXPECT_EQ(board.FieldAt(6, 2).GetX(), 6);
    EXPECT_EQ(board.FieldAt(6, 2).GetY(), 2);
    EXPECT_EQ(board.FieldAt(2, 6).GetElement(), nullptr);
}

TEST(Board, StartsWithDefaultFields) {
    Board board(8, 8);
    EXPECT_EQ(board.FieldAt(7, 7).GetX(), 0);
    EXPECT_EQ(board.FieldAt(7, 7).GetY(), 0);
    EXPECT_EQ(board.FieldAt(7, 7).GetElement(), nullptr);
}

TEST(Board, RefusesPlacesOffTheBoard) {
    Board board(8, 8);
    for (const auto& [x, y] : {std::pair(8, 0), {0, 8}, {-1, 0}, {0, -1}, {8, 8}, {100, 3}, {3, -100}}) {
        EXPECT_EQ(Refusal([&board, column = x, row = y] { board.FieldAt(column, row); }),
                  "InvalidParameterException: Coordinate(s) are out of bound!")
            << x << "," << y;
    }
    EXPECT_EQ(Refusal([&board] { board.SetField(Field(8, 1)); }),
              "InvalidParameterException: Coordinate(s) are out of bound!");
}

TEST(Board, KnowsItsOwnSize) {
    Board board(3, 5);
    EXPECT_EQ(Refusal([&board] { board.FieldAt(2, 4); }), "nothing");
    EXPECT_EQ(Refusal([&board] { board.FieldAt(3, 4); }),
              "InvalidParameterException: Coordinate(s) are out of bound!");
    EXPECT_EQ(Refusal([&board] { board.FieldAt(2, 5); }),
              "InvalidParameterException: Coordinate(s) are out of bound!");
}

}  // namespace
}  // namespace tolvane

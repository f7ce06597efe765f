#include "rules/ChessMove.h"

#include <gtest/gtest.h>

#include "rules/Position.h"
#include "rules/RookMove.h"

namespace tolvane {
namespace {

// The walkers and scanners are the same for every rule, and do not mind what kind of figure walks.
const RookMove rule;

enum class Line { Horizontal, Vertical, Diagonal };

// What the walk of the figure on a field to (x, y) finds: "-", a figure, or what it throws.
std::string Walk(ChessBoard* board, Line line, const char* from, int x, int y) {
    ChessFigure* figure = On(board, from);
    std::string found;
    const std::string refusal = Refusal([&] {
        const int x1 = figure->GetX();
        const int y1 = figure->GetY();
        switch (line) {
            case Line::Horizontal: found = NameOf(rule.WalkHorizontal(board, figure, x1, y1, x, y)); break;
            case Line::Vertical: found = NameOf(rule.WalkVertical(board, figure, x1, y1, x, y)); break;
            case Line::Diagonal: found = NameOf(rule.WalkDiagonal(board, figure, x1, y1, x, y)); break;
        }
    });
    return refusal == "nothing" ? found : refusal;
}

constexpr const char* tooFar = "InvalidParameterException: Coordinates are out of bound!";
constexpr const char* offTheBoard = "InvalidParameterException: Coordinate(s) are out of bound!";
constexpr const char* notHorizontal = "InvalidMoveTypeException: This is not a HORIZONTAL move!";
constexpr const char* notVertical = "InvalidMoveTypeException: This is not a VERTICAL move!";
constexpr const char* notDiagonal = "InvalidMoveTypeException: This is not a DIAGONAL move!";
constexpr const char* blockedInRow = "InvalidMoveException: This Move is not Allowed! CHESSMOVE_H_A";
constexpr const char* blockedInColumn = "InvalidMoveException: This Move is not Allowed! CHESSMOVE_V_A";
constexpr const char* blockedInDiagonal = "InvalidMoveException: This Move is not Allowed! DIAGONAL +1+";
constexpr const char* ownFigure = "InvalidMoveException: This Move is not Allowed! DIAGONAL 2";

constexpr const char* lonelyRook = R"(
    . . . . . . . .
    . . . . . . . .
    . . . . . . . .
    . . . . . . . .
    . . . . . . . .
    . . . . . . . .
    . . . . . . . .
    R . . . . . . .
)";

// The queen in the middle has an own and an enemy figure on lines of all three kinds.
constexpr const char* crossing = R"(
    . . . p . . . P
    . . . . . . . .
    . p . . . P . .
    . . . . . . . .
    . p . Q . . P .
    . . . . . . . .
    . N . P . n . .
    . . . . . . . .
)";

TEST(ChessMoveWalk, AnswersWhatStandsOnTheTarget) {
    const auto empty = Lay(lonelyRook);
    EXPECT_EQ(Walk(empty.get(), Line::Horizontal, "a1", 7, 0), "-");

    const auto enemyAtTheEnd = Lay(R"(
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        R . . . . . . n
    )");
    EXPECT_EQ(Walk(enemyAtTheEnd.get(), Line::Horizontal, "a1", 7, 0), "nh1");

    const auto enemyOnTheWay = Lay(R"(
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        R . . n . . . .
    )");
    EXPECT_EQ(Walk(enemyOnTheWay.get(), Line::Horizontal, "a1", 7, 0), blockedInRow);
    EXPECT_EQ(Walk(enemyOnTheWay.get(), Line::Diagonal, "a1", 2, 3), notDiagonal);
}

TEST(ChessMoveWalk, FollowsEachLineInBothDirections) {
    struct Row {
        Line line;
        const char* target;
        const char* found;
    };
    const Row rows[] = {
        // along the row
        {Line::Horizontal, "c4", "-"},
        {Line::Horizontal, "b4", "pb4"},
        {Line::Horizontal, "a4", blockedInRow},
        {Line::Horizontal, "f4", "-"},
        {Line::Horizontal, "g4", ownFigure},
        {Line::Horizontal, "h4", blockedInRow},
        {Line::Horizontal, "d4", ownFigure},
        {Line::Horizontal, "d5", notHorizontal},
        {Line::Horizontal, "e5", notHorizontal},
        // along the column
        {Line::Vertical, "d7", "-"},
        {Line::Vertical, "d8", "pd8"},
        {Line::Vertical, "d3", "-"},
        {Line::Vertical, "d2", ownFigure},
        {Line::Vertical, "d1", blockedInColumn},
        {Line::Vertical, "d4", ownFigure},
        {Line::Vertical, "e4", notVertical},
        {Line::Vertical, "e5", notVertical},
        // along the diagonals
        {Line::Diagonal, "e5", "-"},
        {Line::Diagonal, "f6", ownFigure},
        {Line::Diagonal, "g7", blockedInDiagonal},
        {Line::Diagonal, "h8", blockedInDiagonal},
        {Line::Diagonal, "c5", "-"},
        {Line::Diagonal, "b6", "pb6"},
        {Line::Diagonal, "a7", blockedInDiagonal},
        {Line::Diagonal, "e3", "-"},
        {Line::Diagonal, "f2", "nf2"},
        {Line::Diagonal, "g1", blockedInDiagonal},
        {Line::Diagonal, "c3", "-"},
        {Line::Diagonal, "b2", ownFigure},
        {Line::Diagonal, "a1", blockedInDiagonal},
        {Line::Diagonal, "d4", ownFigure},
        {Line::Diagonal, "d5", notDiagonal},
        {Line::Diagonal, "e4", notDiagonal},
        {Line::Diagonal, "f5", notDiagonal},
    };
    const auto board = Lay(crossing);
    const std::string before = Snapshot(board.get());
    for (const Row& row : rows) {
        EXPECT_EQ(Walk(board.get(), row.line, "d4", At(row.target).GetX(), At(row.target).GetY()), row.found)
            << row.target;
    }
    EXPECT_EQ(Snapshot(board.get()), before);
}

TEST(ChessMoveWalk, RefusesTargetsFarOffTheBoard) {
    const auto board = Lay(crossing);
    for (const Line line : {Line::Horizontal, Line::Vertical, Line::Diagonal}) {
        for (const auto& [x, y] : {std::pair(9, 3), {-1, 3}, {3, 9}, {3, -1}, {9, 9}, {-1, -1}}) {
            EXPECT_EQ(Walk(board.get(), line, "d4", x, y), tooFar) << x << "," << y;
        }
    }
}

TEST(ChessMoveWalk, LeavesTheFieldJustOffTheBoardToTheBoard) {
    const auto free = Lay(lonelyRook);
    EXPECT_EQ(Walk(free.get(), Line::Horizontal, "a1", 8, 0), offTheBoard);
    EXPECT_EQ(Walk(free.get(), Line::Vertical, "a1", 0, 8), offTheBoard);
    EXPECT_EQ(Walk(free.get(), Line::Diagonal, "a1", 8, 8), offTheBoard);
    EXPECT_EQ(Walk(free.get(), Line::Horizontal, "a1", 0, 8), notHorizontal);
    EXPECT_EQ(Walk(free.get(), Line::Vertical, "a1", 8, 0), notVertical);
    EXPECT_EQ(Walk(free.get(), Line::Diagonal, "a1", 8, 7), notDiagonal);

    const auto blocked = Lay(crossing);
    EXPECT_EQ(Walk(blocked.get(), Line::Horizontal, "d4", 8, 3), blockedInRow);
    EXPECT_EQ(Walk(blocked.get(), Line::Vertical, "d4", 3, 8), blockedInColumn);
    EXPECT_EQ(Walk(blocked.get(), Line::Horizontal, "g4", 8, 3), offTheBoard);
}

TEST(ChessMoveWalk, LooksAtColours) {
    const auto board = Lay(crossing);
    EXPECT_EQ(Walk(board.get(), Line::Horizontal, "b4", 3, 3), "Qd4");
    EXPECT_EQ(Walk(board.get(), Line::Vertical, "b4", 1, 5), ownFigure);
    EXPECT_EQ(Walk(board.get(), Line::Vertical, "b4", 1, 1), "Nb2");
    EXPECT_EQ(Walk(board.get(), Line::Diagonal, "f2", 3, 3), "Qd4");
}

// Scanners

std::string ScanRow(ChessBoard* board, const char* from, int dir) {
    return Names(rule.ScanHorizontal(board, On(board, from), dir));
}

std::string ScanColumn(ChessBoard* board, const char* from, int dir) {
    return Names(rule.ScanVertical(board, On(board, from), dir));
}

std::string ScanDiagonal(ChessBoard* board, const char* from, int dirX, int dirY) {
    return Names(rule.ScanDiagonal(board, On(board, from), dirX, dirY));
}

TEST(ChessMoveScan, ListsTheFieldsUpToTheFirstFigure) {
    const auto board = Lay(crossing);
    EXPECT_EQ(ScanRow(board.get(), "d4", 1), "e4 f4");
    EXPECT_EQ(ScanRow(board.get(), "d4", -1), "b4 c4");
    EXPECT_EQ(ScanColumn(board.get(), "d4", 1), "d5 d6 d7 d8");
    EXPECT_EQ(ScanColumn(board.get(), "d4", -1), "d3");
    EXPECT_EQ(ScanDiagonal(board.get(), "d4", 1, 1), "e5");
    EXPECT_EQ(ScanDiagonal(board.get(), "d4", 1, -1), "e3 f2");
    EXPECT_EQ(ScanDiagonal(board.get(), "d4", -1, 1), "b6 c5");
    EXPECT_EQ(ScanDiagonal(board.get(), "d4", -1, -1), "c3");
}

TEST(ChessMoveScan, StopsAtTheEdge) {
    const auto board = Lay(lonelyRook);
    EXPECT_EQ(ScanRow(board.get(), "a1", 1), "b1 c1 d1 e1 f1 g1 h1");
    EXPECT_EQ(ScanRow(board.get(), "a1", -1), "");
    EXPECT_EQ(ScanColumn(board.get(), "a1", 1), "a2 a3 a4 a5 a6 a7 a8");
    EXPECT_EQ(ScanColumn(board.get(), "a1", -1), "");
    EXPECT_EQ(ScanDiagonal(board.get(), "a1", 1, 1), "b2 c3 d4 e5 f6 g7 h8");
    EXPECT_EQ(ScanDiagonal(board.get(), "a1", -1, 1), "");
    EXPECT_EQ(ScanDiagonal(board.get(), "a1", 1, -1), "");
    EXPECT_EQ(ScanDiagonal(board.get(), "a1", -1, -1), "");
}

TEST(ChessMoveScan, FindsNothingPastAnOwnNeighbour) {
    ChessBoard board(true);
    EXPECT_EQ(ScanColumn(&board, "a1", 1), "");
    EXPECT_EQ(ScanRow(&board, "a1", 1), "");
    EXPECT_EQ(ScanDiagonal(&board, "c1", 1, 1), "");
    EXPECT_EQ(ScanColumn(&board, "d8", -1), "");
}

TEST(ChessMoveScan, RefusesOtherDirections) {
    const auto board = Lay(crossing);
    for (const int dir : {2, 0, -2, 8}) {
        EXPECT_EQ(Refusal([&] { ScanRow(board.get(), "d4", dir); }),
                  "InvalidParameterException: dir_X has to be either 1 or -1 !");
        EXPECT_EQ(Refusal([&] { ScanColumn(board.get(), "d4", dir); }),
                  "InvalidParameterException: dir_Y has to be either 1 or -1 !");
        EXPECT_EQ(Refusal([&] { ScanDiagonal(board.get(), "d4", dir, 1); }),
                  "InvalidParameterException: dir_X and dir_Y has to be either 1 or -1 !");
        EXPECT_EQ(Refusal([&] { ScanDiagonal(board.get(), "d4", -1, dir); }),
                  "InvalidParameterException: dir_X and dir_Y has to be either 1 or -1 !");
    }
}

}  // namespace
}  // namespace tolvane

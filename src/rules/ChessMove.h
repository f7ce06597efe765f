#pragma once

#include <initializer_list>

#include "rules/ChessBoard.h"
#include "rules/ChessFigure.h"
#include "rules/CoordinateList.h"

namespace tolvane {

// How one kind of figure moves. Rule objects hold no state: they are made per use and given up at once. The
// base brings what all figures that move along lines share: the walkers, which follow a given move field by
// field and throw at the first obstacle, and the scanners, which list what can be reached in one direction.
class ChessMove {
public:
    // Validates the move and plays it on the board. Answers the figure captured, or null. What it throws
    // leaves the board as it was.
    virtual ChessFigure* Execute(ChessBoard* board, ChessFigure* figure, int x, int y) const = 0;
    // Whether Execute would go through, without playing.
    virtual bool IsAllowed(ChessBoard* board, ChessFigure* figure, int x, int y) const = 0;
    virtual OwnedCoordinates ReachableFields(ChessBoard* board, ChessFigure* figure) const = 0;

    // Each walks figure on from (x1, y1), at first its own place, to (x2, y2) and answers the enemy that
    // stands there, or null. Throws InvalidParameterException for a target off the board,
    // InvalidMoveTypeException for one that is not on the line, and InvalidMoveException where the way is
    // blocked or an own figure stands on the target.
    virtual ChessFigure* WalkHorizontal(ChessBoard* board, ChessFigure* figure, int x1, int y1, int x2,
                                        int y2) const;
    virtual ChessFigure* WalkVertical(ChessBoard* board, ChessFigure* figure, int x1, int y1, int x2,
                                      int y2) const;
    virtual ChessFigure* WalkDiagonal(ChessBoard* board, ChessFigure* figure, int x1, int y1, int x2,
                                      int y2) const;

    // Each lists the empty fields from figure on up to the first figure, and that one's field if it is an
    // enemy's. Directions are 1 or -1; any other throws InvalidParameterException.
    virtual OwnedCoordinates ScanHorizontal(ChessBoard* board, ChessFigure* figure, int dir_X) const;
    virtual OwnedCoordinates ScanVertical(ChessBoard* board, ChessFigure* figure, int dir_Y) const;
    virtual OwnedCoordinates ScanDiagonal(ChessBoard* board, ChessFigure* figure, int dir_X, int dir_Y) const;

protected:
    using Walker = ChessFigure* (ChessMove::*)(ChessBoard*, ChessFigure*, int, int, int, int) const;

    // Throws InvalidParameterException for a target further off than one past the board's last column and
    // row. That one is left to FieldAt.
    static void RequireTarget(int x, int y);

    // For figures that move along several kinds of lines. WalkAnyLine tries every walker and answers what
    // the last that found its line met on the target; throws InvalidMoveException where none found one.
    ChessFigure* WalkAnyLine(std::initializer_list<Walker> walkers, ChessBoard* board, ChessFigure* figure,
                             int x, int y) const;
    bool IsAnyLineFree(std::initializer_list<Walker> walkers, ChessBoard* board, ChessFigure* figure, int x,
                       int y) const;

    // All four scans of one kind, added to the list.
    void ScanRowAndColumn(CoordinateList& fields, ChessBoard* board, ChessFigure* figure) const;
    void ScanDiagonals(CoordinateList& fields, ChessBoard* board, ChessFigure* figure) const;
};

}  // namespace tolvane

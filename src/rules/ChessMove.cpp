#include "rules/ChessMove.h"

#include <cstdlib>

#include "assets/InvalidParameterException.h"
#include "assets/Numbers.h"
#include "rules/BoardGeometry.h"
#include "rules/FigureOn.h"
#include "rules/InvalidMoveException.h"
#include "rules/InvalidMoveTypeException.h"

namespace tolvane {

namespace {

ChessFigure* Arrive(ChessBoard* board, ChessFigure* figure, int x, int y) {
    ChessFigure* occupant = FigureOn(board, x, y);
    if (occupant != nullptr && !AreEnemies(occupant, figure)) {
        throw InvalidMoveException("This Move is not Allowed! DIAGONAL 2");
    }
    return occupant;
}

OwnedCoordinates ScanLine(ChessBoard* board, ChessFigure* figure, int dirX, int dirY) {
    OwnedCoordinates fields = NoCoordinates();
    int x = figure->GetX() + dirX;
    int y = figure->GetY() + dirY;
    while (OnBoard(x, y) && FigureOn(board, x, y) == nullptr) {
        fields->insert(new Coordinate(x, y));
        x += dirX;
        y += dirY;
    }
    if (OnBoard(x, y) && AreEnemies(FigureOn(board, x, y), figure)) {
        fields->insert(new Coordinate(x, y));
    }
    return fields;
}

}  // namespace

void ChessMove::RequireTarget(int x, int y) {
    if (x < 0 || x > boardSize || y < 0 || y > boardSize) {
        throw InvalidParameterException("Coordinates are out of bound!");
    }
}

ChessFigure* ChessMove::WalkHorizontal(ChessBoard* board, ChessFigure* figure, int x1, int y1, int x2,
                                       int y2) const {
    RequireTarget(x2, y2);
    if (y1 != y2) {
        throw InvalidMoveTypeException("This is not a HORIZONTAL move!");
    }
    if (x1 == x2) {
        return Arrive(board, figure, x2, y2);
    }
    if (figure->GetX() == x1 || FigureOn(board, x1, y1) == nullptr) {
        return WalkHorizontal(board, figure, x1 + Sign(x2 - x1), y1, x2, y2);
    }
    throw InvalidMoveException("This Move is not Allowed! CHESSMOVE_H_A");
}

ChessFigure* ChessMove::WalkVertical(ChessBoard* board, ChessFigure* figure, int x1, int y1, int x2,
                                     int y2) const {
    RequireTarget(x2, y2);
    if (x1 != x2) {
        throw InvalidMoveTypeException("This is not a VERTICAL move!");
    }
    if (y1 == y2) {
        return Arrive(board, figure, x2, y2);
    }
    if (figure->GetY() == y1 || FigureOn(board, x1, y1) == nullptr) {
        return WalkVertical(board, figure, x1, y1 + Sign(y2 - y1), x2, y2);
    }
    throw InvalidMoveException("This Move is not Allowed! CHESSMOVE_V_A");
}

ChessFigure* ChessMove::WalkDiagonal(ChessBoard* board, ChessFigure* figure, int x1, int y1, int x2,
                                     int y2) const {
    RequireTarget(x2, y2);
    if (ColumnsTo(figure, x2) != RowsTo(figure, y2)) {
        throw InvalidMoveTypeException("This is not a DIAGONAL move!");
    }
    if (x1 == x2) {
        return Arrive(board, figure, x2, y2);
    }
    if (figure->GetX() == x1 || FigureOn(board, x1, y1) == nullptr) {
        return WalkDiagonal(board, figure, x1 + Sign(x2 - x1), y1 + Sign(y2 - y1), x2, y2);
    }
    throw InvalidMoveException("This Move is not Allowed! DIAGONAL +1+");
}

OwnedCoordinates ChessMove::ScanHorizontal(ChessBoard* board, ChessFigure* figure, int dir_X) const {
    if (std::abs(dir_X) != 1) {
        throw InvalidParameterException("dir_X has to be either 1 or -1 !");
    }
    return ScanLine(board, figure, dir_X, 0);
}

OwnedCoordinates ChessMove::ScanVertical(ChessBoard* board, ChessFigure* figure, int dir_Y) const {
    if (std::abs(dir_Y) != 1) {
        throw InvalidParameterException("dir_Y has to be either 1 or -1 !");
    }
    return ScanLine(board, figure, 0, dir_Y);
}

OwnedCoordinates ChessMove::ScanDiagonal(ChessBoard* board, ChessFigure* figure, int dir_X, int dir_Y) const {
    if (std::abs(dir_X) != 1 || std::abs(dir_Y) != 1) {
        throw InvalidParameterException("dir_X and dir_Y has to be either 1 or -1 !");
    }
    return ScanLine(board, figure, dir_X, dir_Y);
}

ChessFigure* ChessMove::WalkAnyLine(std::initializer_list<Walker> walkers, ChessBoard* board,
                                    ChessFigure* figure, int x, int y) const {
    bool lineFound = false;
    ChessFigure* captured = nullptr;
    for (const Walker walk : walkers) {
        try {
            captured = (this->*walk)(board, figure, figure->GetX(), figure->GetY(), x, y);
            lineFound = true;
        } catch (const InvalidMoveTypeException&) {
            continue;  // not this kind of line: the next one may do
        }
    }
    if (!lineFound) {
        throw InvalidMoveException("This Move is not Allowed!");
    }
    return captured;
}

bool ChessMove::IsAnyLineFree(std::initializer_list<Walker> walkers, ChessBoard* board, ChessFigure* figure,
                              int x, int y) const {
    for (const Walker walk : walkers) {
        try {
            (this->*walk)(board, figure, figure->GetX(), figure->GetY(), x, y);
            return true;
        } catch (const InvalidMoveException&) {
            return false;
        } catch (...) {
            continue;  // not this kind of line: the next one may do
        }
    }
    return false;
}

void ChessMove::ScanRowAndColumn(CoordinateList& fields, ChessBoard* board, ChessFigure* figure) const {
    for (const int dirX : {1, -1}) {
        fields.merge(*ScanHorizontal(board, figure, dirX));
    }
    for (const int dirY : {1, -1}) {
        fields.merge(*ScanVertical(board, figure, dirY));
    }
}

void ChessMove::ScanDiagonals(CoordinateList& fields, ChessBoard* board, ChessFigure* figure) const {
    for (const int dirX : {1, -1}) {
        for (const int dirY : {1, -1}) {
            fields.merge(*ScanDiagonal(board, figure, dirX, dirY));
        }
    }
}

}  // namespace tolvane

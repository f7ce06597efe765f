#include "rules/KnightMove.h"

#include <cstdlib>

#include "rules/BoardGeometry.h"
#include "rules/FigureOn.h"
#include "rules/GoesThrough.h"
#include "rules/InvalidMoveException.h"

namespace tolvane {

namespace {

bool IsJump(int columns, int rows) {
    return (columns == 2 && rows == 1) || (columns == 1 && rows == 2);
}

}  // namespace

ChessFigure* KnightMove::Validate(ChessBoard* board, ChessFigure* figure, int x, int y) const {
    RequireTarget(x, y);
    if (!IsJump(ColumnsTo(figure, x), RowsTo(figure, y))) {
        throw InvalidMoveException("This Move is not Allowed!");
    }
    ChessFigure* occupant = FigureOn(board, x, y);
    if (occupant != nullptr && !AreEnemies(occupant, figure)) {
        throw InvalidMoveException("This Move is not Allowed!");
    }
    return occupant;
}

ChessFigure* KnightMove::Execute(ChessBoard* board, ChessFigure* figure, int x, int y) const {
    ChessFigure* captured = Validate(board, figure, x, y);
    board->ApplyMove(figure, x, y);
    return captured;
}

bool KnightMove::IsAllowed(ChessBoard* board, ChessFigure* figure, int x, int y) const {
    return GoesThrough([&] { Validate(board, figure, x, y); });
}

OwnedCoordinates KnightMove::ReachableFields(ChessBoard* board, ChessFigure* figure) const {
    OwnedCoordinates fields = NoCoordinates();
    for (int dx = -2; dx <= 2; ++dx) {
        for (int dy = -2; dy <= 2; ++dy) {
            const int x = figure->GetX() + dx;
            const int y = figure->GetY() + dy;
            if (!IsJump(std::abs(dx), std::abs(dy)) || !OnBoard(x, y)) {
                continue;
            }
            const ChessFigure* occupant = FigureOn(board, x, y);
            if (occupant == nullptr || AreEnemies(occupant, figure)) {
                fields->insert(new Coordinate(x, y));
            }
        }
    }
    return fields;
}

}  // namespace tolvane

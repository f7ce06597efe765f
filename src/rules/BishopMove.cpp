#include "rules/BishopMove.h"

#include "rules/GoesThrough.h"

namespace tolvane {

ChessFigure* BishopMove::Execute(ChessBoard* board, ChessFigure* figure, int x, int y) const {
    ChessFigure* captured = WalkDiagonal(board, figure, figure->GetX(), figure->GetY(), x, y);
    board->ApplyMove(figure, x, y);
    return captured;
}

bool BishopMove::IsAllowed(ChessBoard* board, ChessFigure* figure, int x, int y) const {
    return GoesThrough([&] { WalkDiagonal(board, figure, figure->GetX(), figure->GetY(), x, y); });
}

OwnedCoordinates BishopMove::ReachableFields(ChessBoard* board, ChessFigure* figure) const {
    OwnedCoordinates fields = NoCoordinates();
    ScanDiagonals(*fields, board, figure);
    return fields;
}

}  // namespace tolvane

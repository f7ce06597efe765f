#include "rules/RookMove.h"

namespace tolvane {

ChessFigure* RookMove::Execute(ChessBoard* board, ChessFigure* figure, int x, int y) const {
    ChessFigure* captured =
        WalkAnyLine({&ChessMove::WalkHorizontal, &ChessMove::WalkVertical}, board, figure, x, y);
    board->ApplyMove(figure, x, y);
    return captured;
}

bool RookMove::IsAllowed(ChessBoard* board, ChessFigure* figure, int x, int y) const {
    return IsAnyLineFree({&ChessMove::WalkHorizontal, &ChessMove::WalkVertical}, board, figure, x, y);
}

OwnedCoordinates RookMove::ReachableFields(ChessBoard* board, ChessFigure* figure) const {
    OwnedCoordinates fields = NoCoordinates();
    ScanRowAndColumn(*fields, board, figure);
    return fields;
}

}  // namespace tolvane

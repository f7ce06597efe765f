#include "rules/QueenMove.h"

namespace tolvane {

ChessFigure* QueenMove::Execute(ChessBoard* board, ChessFigure* figure, int x, int y) const {
    ChessFigure* captured =
        WalkAnyLine({&ChessMove::WalkHorizontal, &ChessMove::WalkVertical, &ChessMove::WalkDiagonal}, board,
                    figure, x, y);
    board->ApplyMove(figure, x, y);
    return captured;
}

bool QueenMove::IsAllowed(ChessBoard* board, ChessFigure* figure, int x, int y) const {
    return IsAnyLineFree({&ChessMove::WalkHorizontal, &ChessMove::WalkVertical, &ChessMove::WalkDiagonal},
                         board, figure, x, y);
}

OwnedCoordinates QueenMove::ReachableFields(ChessBoard* board, ChessFigure* figure) const {
    OwnedCoordinates fields = NoCoordinates();
    ScanRowAndColumn(*fields, board, figure);
    ScanDiagonals(*fields, board, figure);
    return fields;
}

}  // namespace tolvane

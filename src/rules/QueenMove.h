#pragma once

#include "rules/ChessMove.h"

namespace tolvane {

// Along row, column and diagonals. A target off all of them is an InvalidMoveException, like the rook's.
class QueenMove : public ChessMove {
public:
    ChessFigure* Execute(ChessBoard* board, ChessFigure* figure, int x, int y) const override;
    bool IsAllowed(ChessBoard* board, ChessFigure* figure, int x, int y) const override;
    OwnedCoordinates ReachableFields(ChessBoard* board, ChessFigure* figure) const override;
};

}  // namespace tolvane

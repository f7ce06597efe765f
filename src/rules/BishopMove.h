#pragma once

#include "rules/ChessMove.h"

namespace tolvane {

// Along the diagonals. A target off them is reported as an InvalidMoveTypeException.
class BishopMove : public ChessMove {
public:
    ChessFigure* Execute(ChessBoard* board, ChessFigure* figure, int x, int y) const override;
    bool IsAllowed(ChessBoard* board, ChessFigure* figure, int x, int y) const override;
    OwnedCoordinates ReachableFields(ChessBoard* board, ChessFigure* figure) const override;
};

}  // namespace tolvane

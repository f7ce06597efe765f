#pragma once

#include "rules/ChessMove.h"

namespace tolvane {

// Along row and column. A target off both is an InvalidMoveException, unlike the bishop's.
class RookMove : public ChessMove {
public:
    ChessFigure* Execute(ChessBoard* board, ChessFigure* figure, int x, int y) const override;
    bool IsAllowed(ChessBoard* board, ChessFigure* figure, int x, int y) const override;
    OwnedCoordinates ReachableFields(ChessBoard* board, ChessFigure* figure) const override;
};

}  // namespace tolvane

#pragma once

#include "rules/ChessMove.h"

namespace tolvane {

// The knight's jump, over whatever stands between.
class KnightMove : public ChessMove {
public:
    ChessFigure* Execute(ChessBoard* board, ChessFigure* figure, int x, int y) const override;
    bool IsAllowed(ChessBoard* board, ChessFigure* figure, int x, int y) const override;
    OwnedCoordinates ReachableFields(ChessBoard* board, ChessFigure* figure) const override;

    // The enemy on (x, y), or null. Throws InvalidParameterException for a target off the board and
    // InvalidMoveException for one that is no jump away or holds an own figure.
    ChessFigure* Validate(ChessBoard* board, ChessFigure* figure, int x, int y) const;
};

}  // namespace tolvane

#pragma once

#include "rules/Board.h"
#include "rules/ChessFigure.h"

namespace tolvane {

// The figure on (x, y), or null. Throws InvalidParameterException off the board.
inline ChessFigure* FigureOn(Board* board, int x, int y) {
    return static_cast<ChessFigure*>(board->FieldAt(x, y).GetElement());
}

}  // namespace tolvane

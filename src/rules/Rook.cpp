#include "rules/Rook.h"

namespace tolvane {

void Rook::MoveTo(int column, int row) {
    ChessFigure::MoveTo(column, row);
    moved = true;
}

}  // namespace tolvane

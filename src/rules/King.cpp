#include "rules/King.h"

#include <iostream>

namespace tolvane {

void King::MoveTo(int column, int row) {
    std::cout << "§§§§§§ KING MOVED\n";
    ChessFigure::MoveTo(column, row);
    std::cout << "§§§§§§ KING MOVED to " << GetX() << ":" << GetY() << "\n";
    moved = true;
}

}  // namespace tolvane

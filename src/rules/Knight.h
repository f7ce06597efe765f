#pragma once

#include "rules/ChessFigure.h"

namespace tolvane {

class Knight : public ChessFigure {
public:
    Knight(int column, int row, bool isAlive, Player owner)
        : ChessFigure(column, row, isAlive, owner, FigureType::Knight) {}
};

}  // namespace tolvane

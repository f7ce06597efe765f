#pragma once

#include "rules/ChessFigure.h"

namespace tolvane {

class Queen : public ChessFigure {
public:
    Queen(int column, int row, bool isAlive, Player owner)
        : ChessFigure(column, row, isAlive, owner, FigureType::Queen) {}
};

}  // namespace tolvane

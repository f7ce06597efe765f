#pragma once

#include "rules/ChessFigure.h"

namespace tolvane {

class Bishop : public ChessFigure {
public:
    Bishop(int column, int row, bool isAlive, Player owner)
        : ChessFigure(column, row, isAlive, owner, FigureType::Bishop) {}
};

}  // namespace tolvane

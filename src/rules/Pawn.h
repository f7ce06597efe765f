#pragma once

#include "rules/ChessFigure.h"

namespace tolvane {

class Pawn : public ChessFigure {
public:
    Pawn(int column, int row, bool isAlive, Player owner)
        : ChessFigure(column, row, isAlive, owner, FigureType::Pawn) {}
};

}  // namespace tolvane

#pragma once

#include "rules/ChessFigure.h"

namespace tolvane {

// A rook remembers whether it has ever moved: only a rook that has not may castle.
class Rook : public ChessFigure {
public:
    Rook(int column, int row, bool isAlive, Player owner)
        : ChessFigure(column, row, isAlive, owner, FigureType::Rook) {}

    void MoveTo(int column, int row) override;

    // True from the first MoveTo on, even when that move has been taken back.
    bool HasMoved() const { return moved; }

private:
    bool moved = false;
};

}  // namespace tolvane

#pragma once

#include "rules/ChessFigure.h"

namespace tolvane {

// A king remembers whether it has ever moved, and reports each move on standard output.
class King : public ChessFigure {
public:
    King(int column, int row, bool isAlive, Player owner)
        : ChessFigure(column, row, isAlive, owner, FigureType::King) {}

    void MoveTo(int column, int row) override;

    // True from the first MoveTo on, even when that move has been taken back.
    bool HasMoved() const { return moved; }

private:
    bool moved = false;
};

}  // namespace tolvane

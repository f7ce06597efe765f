#pragma once

#include "rules/Figure.h"
#include "rules/FigureType.h"
#include "rules/Player.h"

namespace tolvane {

// A chess piece: where it stands, whose it is and what kind it is. How it moves is known to the ChessMove of
// its kind alone. Figures belong to the ChessBoard that set them up.
class ChessFigure : public Figure {
public:
    ChessFigure(int column, int row, bool isAlive, Player owner, FigureType kind)
        : Figure(column, row, isAlive), player(owner), type(kind) {}

    Player GetPlayer() const { return player; }
    FigureType GetType() const { return type; }

private:
    Player player;
    FigureType type;
};

}  // namespace tolvane

#pragma once

#include <memory>
#include <vector>

#include "rules/ChessGameFigure.h"

namespace tolvane {

class Board;
class ChessBoard;

// Lets the builder of the scene see what stands where without touching the figures of the rules. A value;
// valid as long as the board that it looks at.
class ChessBoardView {
public:
    ChessBoardView() = default;  // looks at no board and can be asked nothing
    explicit ChessBoardView(ChessBoard* position);

    // Throws InvalidParameterException off the board.
    ChessGameFigure FigureAt(int x, int y) const;

    // The captured figures of both colours in order of capture.
    std::unique_ptr<std::vector<ChessGameFigure>> CapturedCodes() const;

private:
    Board* board = nullptr;  // the Board part of a ChessBoard, not owned
};

}  // namespace tolvane

#pragma once

#include "rules/ChessFigure.h"
#include "rules/Coordinate.h"
#include "rules/MoveRecord.h"

namespace tolvane {

// A chess move that was played, or the note that one was undone. A castling is the king's move alone. The
// figures belong to the board.
class ChessMoveRecord : public MoveRecord {
public:
    ChessMoveRecord() = default;
    ChessMoveRecord(int runningNumber, const Coordinate& from, const Coordinate& to, ChessFigure* mover,
                    ChessFigure* victim, int undone)
        : source(from),
          target(to),
          number(runningNumber),
          undoneNumber(undone),
          figure(mover),
          captured(victim) {}

    const Coordinate* GetSource() const override { return &source; }
    const Coordinate* GetTarget() const override { return &target; }
    int GetNumber() const { return number; }
    // -1 for a played move, otherwise the number of the move that this entry undid.
    int GetUndoneNumber() const { return undoneNumber; }
    // Null in a note of undoing and in the first entry of a game.
    ChessFigure* GetFigure() const { return figure; }
    // Null when nothing was taken; after an en passant it stood elsewhere than on the target.
    ChessFigure* GetCaptured() const { return captured; }

    // Of the figure, which must not be null.
    Player GetPlayer() const { return figure->GetPlayer(); }
    FigureType GetType() const { return figure->GetType(); }

private:
    Coordinate source;
    Coordinate target;
    int number = -1;
    int undoneNumber = -1;
    ChessFigure* figure = nullptr;
    ChessFigure* captured = nullptr;
};

}  // namespace tolvane

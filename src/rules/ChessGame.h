#pragma once

#include <memory>
#include <vector>

#include "rules/ChessBoard.h"
#include "rules/ChessBoardView.h"
#include "rules/ChessMoveRecord.h"
#include "rules/Coordinate.h"
#include "rules/CoordinateList.h"
#include "rules/FigureList.h"
#include "rules/FigureType.h"
#include "rules/MoveResult.h"

namespace tolvane {

// The front door of the rules: owns the position and the history, plays moves, refuses those that leave the
// mover's king attacked, and tells what each move has brought about. It never asks whose turn it is.
class ChessGame {
public:
    // A new game from the start position.
    ChessGame();
    // A game that goes on from a given position, which has been set up.
    explicit ChessGame(std::unique_ptr<ChessBoard> position);

    // Plays the figure on source to target. Throws, always an Exception, when the rules reject it:
    // InvalidMoveException, InvalidMoveTypeException, KingIsCheckException or, for places off the board,
    // InvalidParameterException. A move rejected only because it leaves the own king attacked is taken back
    // as RestoreMove of the board does it: the figures return, the moved flags do not.
    MoveResult PlayMove(const Coordinate* source, const Coordinate* target);

    // The fields that the figure on (x, y) can be picked to go to; the own king's safety is asked for the
    // king's own steps alone. The caller owns the list and its coordinates. Throws InvalidMoveException for
    // an empty field, InvalidParameterException for one off the board and for a pawn on its last row.
    CoordinateList* ReachableFields(int x, int y);

    // Turns the waiting pawn, which must exist, into a figure of that type. Throws InvalidParameterException
    // for a pawn or king; the pawn then stays off the board and still waits.
    MoveResult PromotePawn(FigureType type);

    ChessBoardView GetBoardView();

    // Takes back the latest move that has not been undone yet, and notes it. There is no redo. The start
    // position has nothing to undo.
    void UndoMove();
    void RecordMove(const Coordinate& source, const Coordinate& target, ChessFigure* figure,
                    ChessFigure* captured, int undoneNumber);

    // Entry 0 stands for the start position; the moves follow from number 1 on.
    const std::vector<ChessMoveRecord>& GetHistory() const { return history; }

private:
    ChessFigure* FigureToMove(int x, int y);
    MoveResult JudgeKing(King* king);
    FigureList* Keep(std::unique_ptr<FigureList> list);

    std::unique_ptr<ChessBoard> board;
    std::vector<ChessMoveRecord> history;
    std::vector<std::unique_ptr<FigureList>> handedOut;  // the lists of all results so far
};

}  // namespace tolvane

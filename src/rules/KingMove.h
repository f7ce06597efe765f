#pragma once

#include <memory>

#include "rules/ChessMove.h"
#include "rules/FigureList.h"
#include "rules/King.h"

namespace tolvane {

// The king's moves, castling among them, and the questions that the whole game rests on: who attacks a
// field, and whether a check is mate. Nothing is tried out: all of it reads the position as it stands, with
// the king still on its field. So the king itself shields the field behind it on an attacker's line, and an
// enemy figure that another one guards looks free to take.
class KingMove : public ChessMove {
public:
    ChessFigure* Execute(ChessBoard* board, ChessFigure* figure, int x, int y) const override;
    bool IsAllowed(ChessBoard* board, ChessFigure* figure, int x, int y) const override;
    OwnedCoordinates ReachableFields(ChessBoard* board, ChessFigure* figure) const override;

    // Every enemy of the king that attacks (x, y), in the order of its living list.
    virtual std::unique_ptr<FigureList> Attackers(ChessBoard* board, King* king, int x, int y) const;

    // Null when there is a way out: no attacker at all, one that can be dealt with, or a free field beside
    // the king. Otherwise those who hold the fields beside the king, an attacker once for each field: the
    // king is mated if there are any.
    virtual std::unique_ptr<FigureList> CheckMateTest(ChessBoard* board, King* king,
                                                      const FigureList& attackers) const;

    // Validates the castling towards column x and, unless testOnly, moves the rook. The king's own move is
    // left to the caller. y is not read: castling stays on the king's row. Throws InvalidMoveException.
    virtual void Castle(ChessBoard* board, King* king, int x, int y, bool testOnly) const;

    // Whether a figure of the king's side can take the attacker or step between. Pins are not looked at. A
    // pawn asked here can take the candidate of an en passant off the board.
    virtual bool CanNeutralise(ChessBoard* board, King* king, ChessFigure* attacker) const;

    // What stands on the target of a king's step or castling, or null. Castling moves the rook unless
    // testOnly. Throws InvalidMoveException, KingIsCheckException for an attacked field and
    // InvalidParameterException for one beside the board.
    virtual ChessFigure* ValidateStep(ChessBoard* board, King* king, int x, int y, bool testOnly) const;

private:
    bool IsAttacked(ChessBoard* board, King* king, int x, int y) const;
    bool Attacks(ChessBoard* board, ChessFigure* enemy, const King* king, int x, int y) const;
    void RequireFreeWay(ChessBoard* board, King* king, int dir) const;
};

}  // namespace tolvane

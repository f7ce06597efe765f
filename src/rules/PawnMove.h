#pragma once

#include "rules/ChessMove.h"

namespace tolvane {

// The pawn has two views of its moves. ReachableFields follows chess and is what a player can pick; Validate
// is what a move is played by, and more lenient: it lets a double step capture, and an en passant take the
// candidate wherever that stands.
class PawnMove : public ChessMove {
public:
    ChessFigure* Execute(ChessBoard* board, ChessFigure* figure, int x, int y) const override;
    // Runs Validate, so that the mere question can take the candidate of an en passant off the board.
    bool IsAllowed(ChessBoard* board, ChessFigure* figure, int x, int y) const override;
    // Throws InvalidParameterException for a pawn on the last row, which nobody may ask about.
    OwnedCoordinates ReachableFields(ChessBoard* board, ChessFigure* figure) const override;

    // The figure that the move captures, or null. An en passant removes its victim at once. Throws
    // InvalidParameterException for a target off the board and InvalidMoveException otherwise.
    ChessFigure* Validate(ChessBoard* board, ChessFigure* figure, int x, int y) const;

private:
    ChessFigure* ValidateDoubleStep(ChessBoard* board, ChessFigure* pawn, int x, int y) const;
    ChessFigure* ValidateStep(ChessBoard* board, ChessFigure* pawn, int x, int y) const;
    ChessFigure* ValidateCapture(ChessBoard* board, ChessFigure* pawn, int x, int y) const;
};

}  // namespace tolvane

#pragma once

#include "rules/ChessFigure.h"
#include "rules/Coordinate.h"
#include "rules/FigureList.h"

namespace tolvane {

// What a move or a promotion has brought about: all that the scene has to show. A plain value; figures and
// lists belong to the game that answered it and live as long as that game.
struct MoveResult {
    ChessFigure* checkedKing = nullptr;
    ChessFigure* castlingRook = nullptr;    // the rook moved by a castling
    ChessFigure* promotionPawn = nullptr;   // the pawn that now waits for PromotePawn
    ChessFigure* doubleStepPawn = nullptr;  // the pawn that just stepped two rows
    FigureList* attackers = nullptr;        // who attacks the opponent's king; never null after a move
    FigureList* mateList = nullptr;         // who bars the king's steps; null where he has a way out
    ChessFigure* captured = nullptr;

    // Who stands in check, or NoPlayer.
    Player CheckedPlayer() const;
    // Who is mated, or NoPlayer.
    Player MatedPlayer() const;

    // Each a new coordinate that the caller owns, or null where there is no such figure.
    Coordinate* CheckedKingField() const;
    Coordinate* CastlingRookField() const;  // where the rook stands after the castling
    Coordinate* PromotionField() const;
    Coordinate* DoubleStepField() const;
    Coordinate* CapturedField() const;  // after an en passant not the target of the move
};

}  // namespace tolvane

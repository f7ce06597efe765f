#pragma once

#include <memory>
#include <vector>

#include "assets/TrivialRelease.h"
#include "rules/Board.h"
#include "rules/ChessFigure.h"
#include "rules/Coordinate.h"
#include "rules/FigureList.h"
#include "rules/FigureType.h"
#include "rules/King.h"
#include "rules/Player.h"

namespace tolvane {

class ChessMoveRecord;

// A chess position: the fields, the figures of both sides, and what the latest move left behind. It carries
// out moves that the rules have validated and asks nothing about them itself. It owns its figures and
// lists; whoever gets a pointer to one may keep it as long as the board.
class ChessBoard final : public Board {
public:
    // With setUp the start position, otherwise a board to call SetUp on.
    explicit ChessBoard(bool setUp);

    // Forgets everything and lays the start position.
    virtual void SetUp();

    // Playing

    // Carries a validated move out. Throws InvalidParameterException for a target off the board.
    void ApplyMove(ChessFigure* figure, int x, int y);
    // Takes a figure off its field and out of its living list.
    void RemoveFigure(ChessFigure* figure);
    // Puts figure back on source and captured, which may be null, on target. Only the two figures go back:
    // turn, moved flags and the pawns of the latest move stay as they are, and captured becomes the last of
    // its living list.
    void RestoreMove(const Coordinate& source, const Coordinate& target, ChessFigure* figure,
                     ChessFigure* captured);
    void UndoRecord(const ChessMoveRecord& record);
    // Turns the waiting pawn into a rook, knight, bishop or queen; does nothing when none waits. Any other
    // type throws InvalidParameterException, after the pawn has left the board for good.
    void Promote(FigureType type);

    // Who is on the board

    // The living figures, the king among them.
    FigureList* GetFigures(Player player);
    // The captured figures of both colours in order of capture.
    FigureList* GetCaptured() { return capturedFigures.get(); }
    King* GetKing(Player player) { return player == Player::White ? whiteKing : blackKing; }

    // What the latest move left behind, each null when there is no such figure

    // The pawn that stepped two rows: it can be taken en passant.
    ChessFigure* GetDoubleStepPawn() { return doubleStepPawn; }
    // The pawn that reached the last row and waits for Promote.
    ChessFigure* GetPromotionPawn() { return promotionPawn; }
    ChessFigure* GetCheckedKing() { return checkedKing; }
    void SetCheckedKing(ChessFigure* king) { checkedKing = king; }
    ChessFigure* GetMatedKing() { return matedKing; }
    void SetMatedKing(ChessFigure* king) { matedKing = king; }
    ChessFigure* GetCastlingRook() { return castlingRook; }
    void SetCastlingRook(ChessFigure* rook) { castlingRook = rook; }
    // A toggle that every ApplyMove flips. Not whose turn it is: a castling flips it twice.
    Player GetCurrentPlayer() const { return currentPlayer; }

private:
    // A new figure of the board's own, on no field yet.
    template <typename Kind>
    Kind* Create(int x, int y, Player player);
    void Lay(ChessFigure* figure);
    ChessFigure* CreatePromoted(FigureType type);
    void LayRows(Player player, King* king);
    void ListRows(Player player);

    ChessFigure* doubleStepPawn = nullptr;
    ChessFigure* promotionPawn = nullptr;
    ChessFigure* checkedKing = nullptr;
    ChessFigure* matedKing = nullptr;
    ChessFigure* castlingRook = nullptr;
    Player currentPlayer = Player::White;
    std::unique_ptr<FigureList> whiteFigures;
    std::unique_ptr<FigureList> blackFigures;
    std::unique_ptr<FigureList> capturedFigures;
    King* whiteKing = nullptr;
    King* blackKing = nullptr;
    std::vector<std::unique_ptr<ChessFigure, TrivialRelease>> figures;  // all that were ever set up
};

}  // namespace tolvane

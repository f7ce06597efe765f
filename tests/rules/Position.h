#pragma once

#include <memory>
#include <string>
#include <utility>

#include "assets/Exception.h"
#include "rules/ChessBoard.h"
#include "rules/ChessFigure.h"
#include "rules/ChessGame.h"
#include "rules/Coordinate.h"
#include "rules/CoordinateList.h"
#include "rules/FigureList.h"

// Positions as pictures, fields by their chess names, so that a test reads like a chess book and a failure
// shows a board.

namespace tolvane {

// The board of a picture: eight lines, Black's back row first, White's letters in capitals, "." for an empty
// field, blanks for the eye only. It uses the figures of the start position, so neither side can have more
// of a kind; none of them has moved, and those not drawn are not on the board. The living lists run as after
// SetUp: from each player's back row forward, from column 0 to 7.
std::unique_ptr<ChessBoard> Lay(const std::string& picture);

// The board as such a picture, without blanks.
std::string Picture(ChessBoard* board);
std::string WithoutBlanks(const std::string& picture);

// "e4" is (4, 3).
Coordinate At(const std::string& name);
std::string NameOf(int x, int y);

// The figure on a field, which must not be empty.
ChessFigure* On(ChessBoard* board, const std::string& name);

// "Qd1", small letters for Black; "-" for null.
std::string NameOf(const ChessFigure* figure);
// In list order, "Ke1 Qd1"; "null" for no list.
std::string Names(const FigureList* list);
// Sorted by name, "d3 e4", each as often as it is listed.
std::string Names(const CoordinateList* list);
std::string Names(const OwnedCoordinates& list);

// Everything that a board knows, one line each: fields, lists, what the latest move left behind, flags.
std::string Snapshot(ChessBoard* board);

// Plays "e2" to "e4".
MoveResult Play(ChessGame& game, const std::string& source, const std::string& target);
// Plays "e2-e4 e7-e5" and so on.
void PlayAll(ChessGame& game, const std::string& moves);
std::string Reachable(ChessGame& game, const std::string& source);

// A game that goes on from a picture. The board stays at hand for looking into it.
struct LaidGame {
    explicit LaidGame(const std::string& picture) : LaidGame(Lay(picture)) {}

    ChessBoard* board;
    ChessGame game;

private:
    explicit LaidGame(std::unique_ptr<ChessBoard> laid) : board(laid.get()), game(std::move(laid)) {}
};

std::string ClassAndText(const Exception& exception);

// What a call throws, "InvalidMoveException: This Move is not Allowed!", or "nothing".
template <typename Call>
std::string Refusal(const Call& call) {
    try {
        call();
    } catch (const Exception& exception) {
        return ClassAndText(exception);
    }
    return "nothing";
}

}  // namespace tolvane

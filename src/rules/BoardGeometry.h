#pragma once

#include <cstdlib>

#include "rules/ChessFigure.h"
#include "rules/Player.h"

namespace tolvane {

constexpr int boardSize = 8;

constexpr bool OnBoard(int x, int y) {
    return x >= 0 && x < boardSize && y >= 0 && y < boardSize;
}

// Where a player's pawns go: White's towards higher rows, Black's towards lower ones.
constexpr int Forward(Player player) {
    return player == Player::White ? 1 : -1;
}
constexpr int BackRow(Player player) {
    return player == Player::White ? 0 : boardSize - 1;
}
constexpr int PawnRow(Player player) {
    return BackRow(player) + Forward(player);
}
// The row from which a pawn may capture en passant.
constexpr int EnPassantRow(Player player) {
    return player == Player::White ? 4 : 3;
}
constexpr int LastRow(Player player) {
    return BackRow(Opponent(player));
}

// How far a figure stands from (x, y), in whole columns and in whole rows.
inline int ColumnsTo(const ChessFigure* figure, int x) {
    return std::abs(x - figure->GetX());
}
inline int RowsTo(const ChessFigure* figure, int y) {
    return std::abs(y - figure->GetY());
}

inline bool StandsOn(const ChessFigure* figure, int x, int y) {
    return figure->GetX() == x && figure->GetY() == y;
}

inline bool AreEnemies(const ChessFigure* figure, const ChessFigure* other) {
    return figure->GetPlayer() != other->GetPlayer();
}

}  // namespace tolvane

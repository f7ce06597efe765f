#pragma once

#include <cstdint>

namespace tolvane {

// What stands on a field, colour and kind in one number: a player's codes start at 6 times the player and
// follow FigureType.
enum class ChessGameFigure : std::int32_t {
    WhitePawn = 0,
    WhiteRook = 1,
    WhiteKnight = 2,
    WhiteBishop = 3,
    WhiteQueen = 4,
    WhiteKing = 5,
    BlackPawn = 6,
    BlackRook = 7,
    BlackKnight = 8,
    BlackBishop = 9,
    BlackQueen = 10,
    BlackKing = 11,
    NoFigure = 12,
};

}  // namespace tolvane

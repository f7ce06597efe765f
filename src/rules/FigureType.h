#pragma once

#include <cstdint>

namespace tolvane {

enum class FigureType : std::int32_t {
    Pawn = 0,
    Rook = 1,
    Knight = 2,
    Bishop = 3,
    Queen = 4,
    King = 5,
};

}  // namespace tolvane

#pragma once

#include "assets/Vertex.h"

namespace tolvane {

// The edge of a field of the board, world units.
constexpr float fieldSize = 3.5f;

// Where a figure on a field stands. White's back row, row 0, lies towards positive z.
constexpr Vertex FieldCentre(int column, int row) {
    return {-12.25f + fieldSize * static_cast<float>(column), 0.0f,
            12.25f - fieldSize * static_cast<float>(row)};
}

}  // namespace tolvane

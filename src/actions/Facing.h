#pragma once

#include <optional>

#include "figures/ChessFigure3D.h"

namespace tolvane {

// The field of a figure as signed numbers, for a rook that castles stands on row -1 for a while.
inline int ColumnOf(const ChessFigure3D& figure) {
    return static_cast<int>(figure.GetColumn());
}

inline int RowOf(const ChessFigure3D& figure) {
    return static_cast<int>(figure.GetRow());
}

// Degrees that a figure of this player adds to the heading it rests at to look along a step. The two signs
// say which way column and row change. No value for straight ahead and for no step at all: it looks there
// already.
std::optional<int> TurnTowards(Player player, int columnSign, int rowSign);

}  // namespace tolvane

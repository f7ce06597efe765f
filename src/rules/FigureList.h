#pragma once

#include <vector>

#include "rules/ChessFigure.h"

namespace tolvane {

// Figures in an order that counts: of laying, of capture, of attack. Owns none of them.
using FigureList = std::vector<ChessFigure*>;

}  // namespace tolvane

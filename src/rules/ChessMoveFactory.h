#pragma once

#include <memory>

#include "assets/TrivialRelease.h"
#include "rules/ChessFigure.h"
#include "rules/ChessMove.h"

namespace tolvane {

// Finds the rule for a figure by its type. Made on the spot wherever a rule is needed.
class ChessMoveFactory {
public:
    // Null for a figure of no known type.
    std::unique_ptr<ChessMove, TrivialRelease> CreateMove(const ChessFigure* figure) const;
};

}  // namespace tolvane

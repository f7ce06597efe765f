#pragma once

#include <memory>

#include "assets/TrivialRelease.h"
#include "rules/ChessFigure.h"
#include "rules/ChessMove.h"

namespace tolvane {

// Whoever finds the rule for a figure.
class MoveFactory {
public:
    virtual std::unique_ptr<ChessMove, TrivialRelease> CreateMove(const ChessFigure* figure) const = 0;
};

}  // namespace tolvane

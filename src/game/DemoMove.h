#pragma once

#include "rules/Coordinate.h"

namespace tolvane {

// One half-move of the demo game: the two fields that a player would click.
class DemoMove {
public:
    DemoMove(const Coordinate& sourceField, const Coordinate& targetField)
        : source(sourceField), target(targetField) {}

    Coordinate GetSource() const { return source; }
    Coordinate GetTarget() const { return target; }

private:
    Coordinate source;
    Coordinate target;
};

}  // namespace tolvane

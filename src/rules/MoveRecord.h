#pragma once

#include "rules/Coordinate.h"

namespace tolvane {

// An entry of a game's history.
class MoveRecord {
public:
    virtual const Coordinate* GetSource() const = 0;
    virtual const Coordinate* GetTarget() const = 0;
};

}  // namespace tolvane

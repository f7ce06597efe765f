#include "rules/Coordinate.h"

namespace tolvane {

int Coordinate::Compare(const Coordinate& other) const {
    // Without a difference, which places far off the board would overflow.
    return x != other.x ? (x > other.x) - (x < other.x) : (y > other.y) - (y < other.y);
}

}  // namespace tolvane

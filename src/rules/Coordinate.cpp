#include "rules/Coordinate.h"

#include "assets/Numbers.h"

namespace tolvane {

int Coordinate::Compare(const Coordinate& other) const {
    return x != other.x ? Sign(x - other.x) : Sign(y - other.y);
}

}  // namespace tolvane

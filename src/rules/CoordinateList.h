#pragma once

#include <memory>
#include <set>

#include "rules/Coordinate.h"

namespace tolvane {

// The fields that a figure can reach. Ordered by address, so the order means nothing, and equal places stay
// apart. Whoever receives a list owns it and every coordinate in it.
using CoordinateList = std::set<Coordinate*>;

// Frees a list together with its coordinates.
struct CoordinateListRelease {
    void operator()(CoordinateList* list) const {
        for (const Coordinate* place : *list) {
            delete place;
        }
        delete list;
    }
};

// A list that is freed, coordinates and all, with its owner.
using OwnedCoordinates = std::unique_ptr<CoordinateList, CoordinateListRelease>;

inline OwnedCoordinates NoCoordinates() {
    return OwnedCoordinates(new CoordinateList);
}

}  // namespace tolvane

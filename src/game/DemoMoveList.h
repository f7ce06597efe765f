#pragma once

#include <cstddef>
#include <vector>

#include "game/DemoMove.h"

namespace tolvane {

// The half-moves of the demo game with a bookmark: each is handed out once.
class DemoMoveList {
public:
    // Appends a move and puts the bookmark back to the first one.
    void Add(const DemoMove& move);
    bool HasNext() const;
    // The move at the bookmark, which goes on by one. To be asked only while HasNext.
    DemoMove Next();

private:
    std::size_t cursor = 0;
    std::vector<DemoMove> moves;
};

}  // namespace tolvane

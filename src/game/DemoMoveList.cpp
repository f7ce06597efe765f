#include "game/DemoMoveList.h"

namespace tolvane {

void DemoMoveList::Add(const DemoMove& move) {
    moves.push_back(move);
    cursor = 0;
}

bool DemoMoveList::HasNext() const {
    return cursor < moves.size();
}

DemoMove DemoMoveList::Next() {
    return moves[cursor++];
}

}  // namespace tolvane

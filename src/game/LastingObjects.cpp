#include "game/LastingObjects.h"

#include <vector>

namespace tolvane {

void KeepToProcessEnd(const void* object) {
    static auto* const kept = new std::vector<const void*>;  // itself kept, so that no exit order matters
    kept->push_back(object);
}

}  // namespace tolvane

#pragma once

#include <memory>
#include <utility>

namespace tolvane {

// The frame, with its stores and the GL context, ends before the game does, and deleting figures, models and
// effects would need them. So these live to the end of the process, where the system takes everything back at
// once. They are kept on a list, which says that this is meant: a leak checker finds them reachable.
void KeepToProcessEnd(const void* object);

// Makes an object that is never deleted.
template <typename Object, typename... Arguments>
Object* MakeLasting(Arguments&&... arguments) {
    auto object = std::make_unique<Object>(std::forward<Arguments>(arguments)...);
    KeepToProcessEnd(object.get());
    return object.release();
}

}  // namespace tolvane

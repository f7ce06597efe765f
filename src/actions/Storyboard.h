#pragma once

#include <cstddef>
#include <span>
#include <type_traits>

#include "assets/Vertex.h"

namespace tolvane {

// One phase of a script: plays a frame of it and answers true when the phase is over.
template <typename Script>
using Phase = bool (Script::*)(float frameTime, const Vertex* eyePosition);

// Plays a frame of the phase at which the script stands. A phase that is over hands on to the next, which
// begins with the next frame; true when the last one is over.
template <typename Script>
bool PlayPhase(Script& script, std::span<const std::type_identity_t<Phase<Script>>> storyboard, int& state,
               float frameTime, const Vertex* eyePosition) {
    const auto current = static_cast<std::size_t>(state);
    if (!(script.*storyboard[current])(frameTime, eyePosition))
        return false;
    if (current + 1 == storyboard.size())
        return true;
    ++state;
    return false;
}

}  // namespace tolvane

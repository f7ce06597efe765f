#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "figures/ChessFigure3D.h"

namespace tolvane {

// Some movements only notice that they have arrived when a step ends inside a narrow window about the goal. A
// whole frame is too long a step for them, so they get its time in slices of at most a millisecond, until it
// is used up or step reports arrival; that report is the answer. A frame without time is one call without
// time.
template <typename StepFunction>
bool InSlices(float frameTime, StepFunction step) {
    constexpr float longestSlice = 0.001f;
    const auto count =
        std::max(std::int64_t{1}, static_cast<std::int64_t>(std::ceil(frameTime / longestSlice)));
    const float slice = frameTime / static_cast<float>(count);
    for (std::int64_t i = 0; i < count; ++i)
        if (step(slice))
            return true;
    return false;
}

// A frame's turn towards the target heading.
inline bool TurnFor(float frameTime, ChessFigure3D& figure) {
    return InSlices(frameTime, [&figure](float slice) { return figure.TurnToTargetHeading(slice); });
}

}  // namespace tolvane

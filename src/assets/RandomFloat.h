#pragma once

#include "assets/Numbers.h"

namespace tolvane {

// Random floats from the program's one sequence, each taking one number of it. Both ends can come out.

constexpr float randomMaximum = 32767.0f;

inline float RandomUpTo(float limit) {
    return static_cast<float>(NextRandom()) * limit / randomMaximum;
}

inline float RandomUnit() {
    return static_cast<float>(NextRandom()) / randomMaximum;
}

inline float RandomRange(float low, float high) {
    return RandomUpTo(high - low) + low;
}

}  // namespace tolvane

#pragma once

#include <cstdint>

namespace tolvane {

// A stopwatch of high resolution.
class Timer {
public:
    Timer();

    // Seconds since the latest Tick of any timer; the first of all counts from the making of this one.
    float Tick();
    // The reciprocal of the latest interval; infinite where that was too short to measure.
    float GetFramesPerSecond() const { return framesPerSecond; }

private:
    std::int64_t start;
    std::int64_t frequency;  // counts a second
    float framesPerSecond = 0.0f;
};

}  // namespace tolvane

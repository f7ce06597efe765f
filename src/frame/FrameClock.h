#pragma once

#include <cstdint>

namespace tolvane {

// The clock of the frames. There is one for the process, since a frame and a picking pass both step it.
struct FrameClock {
    std::uint32_t ticks = 0;    // milliseconds since SDL started
    double currentTime = 0.0;   // seconds
    double previousTime = 0.0;  // seconds
    double frameTime = 0.0;     // seconds between the last two steps; not clamped, and 0 is legal

    // Moves the clock on to now, in milliseconds.
    void Step(std::uint32_t now);
};

extern FrameClock frameClock;

}  // namespace tolvane

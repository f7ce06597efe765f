#pragma once

#include <cstdint>
#include <string>

namespace tolvane {

// The frames a second, averaged over at least two seconds; one for the process. The first value of all
// divides the frames counted by all the time since the start.
struct FrameCounter {
    int frameCount = 0;
    int lastFpsTicks = 0;  // milliseconds
    float fps = 0.0f;

    // Counts a frame drawn at ticks, in milliseconds.
    void Count(std::uint32_t ticks);
    // What the counter's box shows.
    std::string Text() const;
};

extern FrameCounter frameCounter;

}  // namespace tolvane

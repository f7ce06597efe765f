#include "frame/FrameClock.h"

namespace tolvane {

FrameClock frameClock;

void FrameClock::Step(std::uint32_t now) {
    previousTime = currentTime;
    ticks = now;
    currentTime = ticks * 0.001;
    frameTime = currentTime - previousTime;
}

}  // namespace tolvane

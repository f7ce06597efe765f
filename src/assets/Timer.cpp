#include "assets/Timer.h"

#include <chrono>
#include <optional>

namespace tolvane {

namespace {

using Clock = std::chrono::steady_clock;

// Shared by all timers; set by the first Tick of any of them.
std::optional<std::int64_t> lastReading;

std::int64_t ReadCounter() {
    return Clock::now().time_since_epoch().count();
}

}  // namespace

Timer::Timer() : start(ReadCounter()), frequency(Clock::period::den / Clock::period::num) {}

float Timer::Tick() {
    const std::int64_t now = ReadCounter();
    const auto interval = static_cast<float>(now - lastReading.value_or(start));
    lastReading = now;
    const auto countsPerSecond = static_cast<float>(frequency);
    framesPerSecond = countsPerSecond / interval;
    return interval / countsPerSecond;
}

}  // namespace tolvane

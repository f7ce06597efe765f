#include "frame/FrameCounter.h"

#include <array>
#include <cstdio>

#include "assets/Numbers.h"

namespace tolvane {

namespace {

constexpr int averagedMilliseconds = 2000;

}  // namespace

FrameCounter frameCounter;

void FrameCounter::Count(std::uint32_t ticks) {
    ++frameCount;
    const auto elapsed = static_cast<int>(ticks - static_cast<std::uint32_t>(lastFpsTicks));
    if (elapsed < averagedMilliseconds)
        return;
    fps = static_cast<float>(frameCount / (elapsed * 0.001));
    lastFpsTicks = static_cast<int>(ticks);
    frameCount = 0;
}

std::string FrameCounter::Text() const {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%f fps", RoundTo(fps, 2));
    return text.data();
}

}  // namespace tolvane

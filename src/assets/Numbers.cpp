#include "assets/Numbers.h"

#include <cmath>

namespace tolvane {

namespace {

constexpr std::uint32_t firstState = 1;
std::uint32_t state = firstState;

}  // namespace

double RoundTo(double value, int digits) {
    const double power = std::pow(10.0, digits);
    const double shifted = power * value + (value < 0.0 ? -0.5 : 0.5);
    return static_cast<double>(static_cast<std::int64_t>(shifted)) / power;
}

int NextRandom() {
    state = state * 214013u + 2531011u;
    return static_cast<int>((state >> 16) & 32767u);
}

void RestartRandom() {
    state = firstState;
}

int RandomInRange(int low, int high) {
    return low + static_cast<int>(NextRandom() * (high - low + 1) / 32768.0);
}

}  // namespace tolvane

#pragma once

#include <cstdint>

namespace tolvane {

constexpr double radiansPerDegree = 0.017453293;

// -1, 0 or 1.
template <typename Number>
constexpr int Sign(Number n) {
    return (n > Number(0)) - (n < Number(0));
}

// The value rounded to a number of decimals, halves away from zero.
double RoundTo(double value, int digits);

// The next number of the one random sequence of the program, 0 to 32767. It is never seeded, so every
// run hears and sees the same series. The generator is the classic 15-bit linear congruential one
// (state * 214013 + 2531011, upper half): the C library's own has another range on every system.
int NextRandom();

// Puts the sequence back to its start, as a new run of the program would find it.
void RestartRandom();

// A whole number from low to high, both included.
int RandomInRange(int low, int high);

}  // namespace tolvane

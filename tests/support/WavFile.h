#pragma once

#include <cstdint>
#include <vector>

namespace tolvane::test {

// The bytes of a WAV file that holds a sine tone: 44,100 Hz, 16 bits, one channel.
std::vector<std::uint8_t> WavBytes(double seconds, double hertz);

}  // namespace tolvane::test

#include "support/WavFile.h"

#include <cmath>
#include <cstddef>
#include <numbers>
#include <string_view>

namespace tolvane::test {

namespace {

constexpr std::uint32_t samplesPerSecond = 44100;
constexpr std::uint32_t bytesPerSample = 2;
constexpr double loudness = 16000.0;

void Append(std::vector<std::uint8_t>& bytes, std::string_view text) {
    for (const char letter : text)
        bytes.push_back(static_cast<std::uint8_t>(letter));
}

void Append(std::vector<std::uint8_t>& bytes, std::uint32_t number, int size) {
    for (int i = 0; i < size; ++i)
        bytes.push_back(static_cast<std::uint8_t>(number >> (8 * i)));
}

}  // namespace

std::vector<std::uint8_t> WavBytes(double seconds, double hertz) {
    const auto samples = static_cast<std::uint32_t>(seconds * samplesPerSecond);
    const std::uint32_t dataSize = samples * bytesPerSample;
    std::vector<std::uint8_t> bytes;
    Append(bytes, "RIFF");
    Append(bytes, 36 + dataSize, 4);
    Append(bytes, "WAVEfmt ");
    Append(bytes, 16, 4);
    Append(bytes, 1, 2);  // plain samples
    Append(bytes, 1, 2);  // one channel
    Append(bytes, samplesPerSecond, 4);
    Append(bytes, samplesPerSecond * bytesPerSample, 4);
    Append(bytes, bytesPerSample, 2);
    Append(bytes, bytesPerSample * 8, 2);
    Append(bytes, "data");
    Append(bytes, dataSize, 4);
    for (std::uint32_t i = 0; i < samples; ++i) {
        const double phase = 2.0 * std::numbers::pi * hertz * i / samplesPerSecond;
        const auto sample = static_cast<std::int16_t>(loudness * std::sin(phase));
        Append(bytes, static_cast<std::uint16_t>(sample), 2);
    }
    return bytes;
}

}  // namespace tolvane::test

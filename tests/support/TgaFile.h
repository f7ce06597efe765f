#pragma once

#include <cstdint>
#include <vector>

namespace tolvane::test {

// The bytes of an uncompressed TGA file whose first row is the bottom one. Pixels are as the file has them:
// blue, green, red and, with 32 bits, alpha; with 8 bits an index into a palette of greys.
std::vector<std::uint8_t> TgaBytes(int width, int height, int bitsPerPixel,
                                   const std::vector<std::uint8_t>& pixels);

// A picture of one opaque colour.
std::vector<std::uint8_t> PlainTga(int width, int height, std::uint8_t red, std::uint8_t green,
                                   std::uint8_t blue);

}  // namespace tolvane::test

#include "support/TgaFile.h"

namespace tolvane::test {

namespace {

constexpr int paletteColors = 256;

void AppendNumber(std::vector<std::uint8_t>& bytes, int number) {
    bytes.push_back(static_cast<std::uint8_t>(number & 0xFF));
    bytes.push_back(static_cast<std::uint8_t>(number >> 8));
}

}  // namespace

std::vector<std::uint8_t> TgaBytes(int width, int height, int bitsPerPixel,
                                   const std::vector<std::uint8_t>& pixels) {
    const bool hasPalette = bitsPerPixel == 8;
    std::vector<std::uint8_t> bytes{0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    if (hasPalette)
        bytes = {0, 1, 1, 0, 0, 0, 1, 24, 0, 0, 0, 0};
    AppendNumber(bytes, width);
    AppendNumber(bytes, height);
    bytes.push_back(static_cast<std::uint8_t>(bitsPerPixel));
    bytes.push_back(bitsPerPixel == 32 ? 8 : 0);
    if (hasPalette)
        for (int grey = 0; grey < paletteColors; ++grey)
            bytes.insert(bytes.end(), 3, static_cast<std::uint8_t>(grey));
    bytes.insert(bytes.end(), pixels.begin(), pixels.end());
    return bytes;
}

std::vector<std::uint8_t> PlainTga(int width, int height, std::uint8_t red, std::uint8_t green,
                                   std::uint8_t blue) {
    std::vector<std::uint8_t> pixels;
    for (int i = 0; i < width * height; ++i)
        pixels.insert(pixels.end(), {blue, green, red});
    return TgaBytes(width, height, 24, pixels);
}

}  // namespace tolvane::test

#include "assets/TextureFile.h"

#include <array>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <new>
#include <system_error>
#include <utility>

#include "assets/Gl.h"
#include "assets/TightRows.h"

namespace tolvane {

namespace {

constexpr std::array<std::uint8_t, 12> trueColorHeader{0, 0, 2};
constexpr std::array<std::uint8_t, 12> colorMappedHeader{0, 1, 1, 0, 0, 0, 1, 24};
constexpr long paletteSize = 768;
constexpr std::size_t messageSize = 2000;
constexpr auto* alphaUnreadable = "Failed to load alpha file.";
constexpr auto* alphaOfOtherDepth = "Alpha file not in 8 bit format.";

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

// An unsigned count of bytes that the file still holds behind its reading position.
std::uintmax_t BytesLeft(std::FILE* file, const std::string& path) {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    const long position = std::ftell(file);
    if (error || position < 0 || static_cast<std::uintmax_t>(position) > size)
        return 0;
    return size - static_cast<std::uintmax_t>(position);
}

template <std::size_t count>
bool ReadBytes(std::FILE* file, std::array<std::uint8_t, count>& bytes) {
    return std::fread(bytes.data(), 1, count, file) == count;
}

// TGA stores blue first.
void SwapRedAndBlue(TextureImage& picture) {
    const auto step = static_cast<std::size_t>(picture.BytesPerPixel());
    for (std::size_t i = 0; i + 2 < picture.pixels.size(); i += step)
        std::swap(picture.pixels[i], picture.pixels[i + 2]);
}

}  // namespace

bool TextureFile::ReadTGA(TextureImage& picture, const std::string& path) const {
    picture = {};
    const File file(std::fopen(path.c_str(), "rb"));
    if (!file)
        return false;

    std::array<std::uint8_t, 12> header{};
    std::array<std::uint8_t, 6> shape{};
    if (!ReadBytes(file.get(), header) || (header != trueColorHeader && header != colorMappedHeader))
        return false;
    if (!ReadBytes(file.get(), shape))
        return false;
    picture.width = shape[0] + 256 * shape[1];
    picture.height = shape[2] + 256 * shape[3];
    picture.bitsPerPixel = shape[4];
    if (picture.BytesPerPixel() == 1)
        std::fseek(file.get(), paletteSize, SEEK_CUR);

    const std::size_t size = static_cast<std::size_t>(picture.width) *
                             static_cast<std::size_t>(picture.height) *
                             static_cast<std::size_t>(picture.BytesPerPixel());
    if (size > BytesLeft(file.get(), path))
        return false;
    picture.pixels.resize(size);
    return std::fread(picture.pixels.data(), 1, size, file.get()) == size;
}

unsigned int TextureFile::Load(const char* colorFile, const char* alphaFile, bool mipmaps) {
    colorPath = colorFile ? colorFile : "";
    alphaPath = alphaFile ? alphaFile : "";
    failure.clear();
    textureId = 0;
    format = GL_RGB;
    image = std::make_unique<TextureImage>();
    if (!(colorFile ? ReadColor(alphaFile != nullptr) : ReadAlphaAlone()))
        return 0;
    width = image->width;
    height = image->height;
    if (image->BytesPerPixel() >= 3)
        SwapRedAndBlue(*image);
    return textureId = Upload(mipmaps);
}

bool TextureFile::ReadColor(bool joinAlpha) {
    if (!ReadTGA(*image, colorPath))
        return Fail("Failed to load RGB file.");
    if (image->bitsPerPixel == 32)
        format = GL_RGBA;
    TextureImage alpha;
    const bool joins = joinAlpha && format == GL_RGB;
    if (joins && !ReadTGA(alpha, alphaPath))
        return Fail(alphaUnreadable);
    if (image->bitsPerPixel != 24 && image->bitsPerPixel != 32)
        return Fail("RGB file not in 8 Bit format!");
    return !joins || JoinAlpha(alpha);
}

bool TextureFile::ReadAlphaAlone() {
    format = GL_ALPHA;
    if (!ReadTGA(*image, alphaPath))
        return Fail(alphaUnreadable);
    return image->bitsPerPixel == 8 || Fail(alphaOfOtherDepth);
}

bool TextureFile::JoinAlpha(const TextureImage& alpha) {
    if (alpha.bitsPerPixel != 8)
        return Fail(alphaOfOtherDepth);
    if (alpha.width != image->width || alpha.height != image->height)
        return Fail("Alpha size does not eqal RGB size.");

    std::vector<std::uint8_t> joined;
    try {
        joined.resize(alpha.pixels.size() * 4);
    } catch (const std::bad_alloc&) {
        return Fail("Out of memory.");
    }
    for (std::size_t i = 0; i < alpha.pixels.size(); ++i) {
        for (std::size_t channel = 0; channel < 3; ++channel)
            joined[i * 4 + channel] = image->pixels[i * 3 + channel];
        joined[i * 4 + 3] = alpha.pixels[i];
    }
    image->pixels = std::move(joined);
    image->bitsPerPixel = 32;
    format = GL_RGBA;
    return true;
}

bool TextureFile::Fail(const char* reason) {
    std::array<char, messageSize> message{};
    std::snprintf(message.data(), message.size(), "Failed to load Texture (%s, %s). Reason: %s",
                  colorPath.c_str(), alphaPath.c_str(), reason);
    failure = message.data();
    return false;
}

unsigned int TextureFile::Upload(bool mipmaps) const {
    if (!glGetString(GL_VERSION))
        return 0;
    GLuint texture = 0;
    glGenTextures(1, &texture);
    glBindTexture(GL_TEXTURE_2D, texture);
    const TightRows tight;
    const auto internalFormat = static_cast<GLint>(format);
    if (!mipmaps) {
        glTexImage2D(GL_TEXTURE_2D, 0, internalFormat, width, height, 0, format, GL_UNSIGNED_BYTE,
                     image->pixels.data());
        return texture;
    }
    if (gluBuild2DMipmaps(GL_TEXTURE_2D, internalFormat, width, height, format, GL_UNSIGNED_BYTE,
                          image->pixels.data()) == 0)
        return texture;
    glDeleteTextures(1, &texture);
    return 0;
}

}  // namespace tolvane

#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace tolvane {

// A picture as a TGA file holds it, bottom row first unless the file says otherwise.
struct TextureImage {
    int width = 0;
    int height = 0;
    int bitsPerPixel = 0;
    std::vector<std::uint8_t> pixels;

    int BytesPerPixel() const { return bitsPerPixel / 8; }
};

// Reads uncompressed TGA files by itself and can join a colour file with a separate alpha file.
class TextureFile {
public:
    // Reads one file. False when it cannot be opened, is of another kind, or holds fewer pixels than it
    // says; a picture that the file cannot hold costs no memory.
    bool ReadTGA(TextureImage& picture, const std::string& path) const;

    // Uploads a colour file of 24 or 32 bits, an alpha file of 8 bits, or both joined; either path may be
    // null. Answers the GL texture, owned by the caller, or 0, and GetFailure then tells why.
    unsigned int Load(const char* colorFile, const char* alphaFile, bool mipmaps);

    const std::string& GetFailure() const { return failure; }
    unsigned int GetFormat() const { return format; }
    int GetWidth() const { return width; }
    int GetHeight() const { return height; }
    unsigned int GetTextureId() const { return textureId; }

private:
    bool ReadColor(bool joinAlpha);
    bool ReadAlphaAlone();
    bool JoinAlpha(const TextureImage& alpha);
    bool Fail(const char* reason);
    unsigned int Upload(bool mipmaps) const;

    std::unique_ptr<TextureImage> image;
    unsigned int format = 0;  // GL pixel format
    std::string colorPath;
    std::string alphaPath;
    int width = 0;
    int height = 0;
    unsigned int textureId = 0;
    std::string failure;
};

}  // namespace tolvane

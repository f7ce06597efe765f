#pragma once

#include <map>
#include <string>

namespace tolvane {

// Turns picture files into GL textures and remembers them by path, so that a file is uploaded once. The
// path counts as it is written: another case or separator is another texture. A picture that cannot be
// read gives a console line and an empty texture, and is tried again the next time.
class TextureHandler {
public:
    static constexpr unsigned int unknownTexture = 0xFFFFFFFFu;

    TextureHandler();
    // Leaves the GL textures alone: DeleteAllTextures frees them.
    ~TextureHandler() = default;
    TextureHandler(TextureHandler&&) noexcept = default;
    TextureHandler& operator=(TextureHandler&&) noexcept = default;

    // The GL texture of a picture, with GL's names for filters, wrapping and environment mode. Those of the
    // first load of a path stay in force.
    // With mipmaps, the type of the picture told by its file.
    unsigned int LoadTexture(const std::string& path, int magFilter, int minFilter, int wrapS, int wrapT,
                             int envMode);
    // From a TGA file, without mipmaps.
    unsigned int LoadTGATexture(const std::string& path, int magFilter, int minFilter, int wrapS, int wrapT,
                                int envMode);
    // A volume, which is not remembered: every call loads anew.
    unsigned int LoadTexture3D(const std::string& path, int magFilter, int minFilter, int wrapS, int wrapT,
                               int envMode);

    // The texture of a path that was loaded, or unknownTexture.
    unsigned int GetTextureId(const std::string& path) const;
    // Frees all remembered textures and forgets them.
    void DeleteAllTextures();

    // Fetches the error of the latest load; true when there is none, else a console line gives its number.
    bool CheckError();
    unsigned int GetLastError() const { return lastError; }

private:
    enum class Upload { Mipmaps, FirstLevel };

    unsigned int LoadPicture(const std::string& path, int magFilter, int minFilter, int wrapS, int wrapT,
                             int envMode, Upload upload);

    unsigned int lastError = 0;
    std::map<std::string, unsigned int> textures;
};

}  // namespace tolvane

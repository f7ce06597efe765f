#include "assets/TextureHandler.h"

#include <IL/il.h>

#include <iostream>
#include <vector>

#include "assets/Gl.h"
#include "assets/TightRows.h"

namespace tolvane {

namespace {

// DevIL piles its errors up: what an earlier load has left would be taken for this one's.
void ForgetErrors() {
    while (ilGetError() != IL_NO_ERROR) {
    }
}

// Without a window there is no GL to upload to, and GLU would stumble over that.
bool HasContext() {
    return glGetString(GL_VERSION) != nullptr;
}

void SetParameters(GLenum target, int magFilter, int minFilter, int wrapS, int wrapT) {
    glTexParameteri(target, GL_TEXTURE_MAG_FILTER, magFilter);
    glTexParameteri(target, GL_TEXTURE_MIN_FILTER, minFilter);
    glTexParameteri(target, GL_TEXTURE_WRAP_S, wrapS);
    glTexParameteri(target, GL_TEXTURE_WRAP_T, wrapT);
}

// The target is none of an environment: drivers refuse the call, and the environment keeps modulating.
void SetEnvironment(int envMode) {
    glTexEnvi(GL_TEXTURE_2D, GL_TEXTURE_ENV_MODE, envMode);
}

void UploadMipmaps() {
    gluBuild2DMipmaps(GL_TEXTURE_2D, ilGetInteger(IL_IMAGE_BYTES_PER_PIXEL), ilGetInteger(IL_IMAGE_WIDTH),
                      ilGetInteger(IL_IMAGE_HEIGHT), static_cast<GLenum>(ilGetInteger(IL_IMAGE_FORMAT)),
                      GL_UNSIGNED_BYTE, ilGetData());
}

void UploadFirstLevel() {
    glTexImage2D(GL_TEXTURE_2D, 0, ilGetInteger(IL_IMAGE_BYTES_PER_PIXEL), ilGetInteger(IL_IMAGE_WIDTH),
                 ilGetInteger(IL_IMAGE_HEIGHT), 0, static_cast<GLenum>(ilGetInteger(IL_IMAGE_FORMAT)),
                 GL_UNSIGNED_BYTE, ilGetData());
}

void UploadVolume() {
    if (glTexImage3D)
        glTexImage3D(GL_TEXTURE_3D, 0, ilGetInteger(IL_IMAGE_BYTES_PER_PIXEL), ilGetInteger(IL_IMAGE_WIDTH),
                     ilGetInteger(IL_IMAGE_HEIGHT), ilGetInteger(IL_IMAGE_DEPTH), 0,
                     static_cast<GLenum>(ilGetInteger(IL_IMAGE_FORMAT)), GL_UNSIGNED_BYTE, ilGetData());
}

}  // namespace

TextureHandler::TextureHandler() {
    ilInit();
}

unsigned int TextureHandler::LoadTexture(const std::string& path, int magFilter, int minFilter, int wrapS,
                                         int wrapT, int envMode) {
    return LoadPicture(path, magFilter, minFilter, wrapS, wrapT, envMode, Upload::Mipmaps);
}

unsigned int TextureHandler::LoadTGATexture(const std::string& path, int magFilter, int minFilter, int wrapS,
                                            int wrapT, int envMode) {
    return LoadPicture(path, magFilter, minFilter, wrapS, wrapT, envMode, Upload::FirstLevel);
}

unsigned int TextureHandler::LoadPicture(const std::string& path, int magFilter, int minFilter, int wrapS,
                                         int wrapT, int envMode, Upload upload) {
    const unsigned int known = GetTextureId(path);
    if (known != unknownTexture)
        return known;

    ILuint picture = 0;
    GLuint texture = 0;
    ilGenImages(1, &picture);
    glGenTextures(1, &texture);
    ilBindImage(picture);
    ForgetErrors();
    const bool loaded = upload == Upload::Mipmaps ? ilLoadImage(path.c_str()) : ilLoad(IL_TGA, path.c_str());

    glBindTexture(GL_TEXTURE_2D, texture);
    SetParameters(GL_TEXTURE_2D, magFilter, minFilter, wrapS, wrapT);
    SetEnvironment(envMode);
    if (loaded && HasContext()) {
        const TightRows tight;
        upload == Upload::Mipmaps ? UploadMipmaps() : UploadFirstLevel();
    }
    ilDeleteImages(1, &picture);
    if (CheckError())
        textures[path] = texture;
    return texture;
}

unsigned int TextureHandler::LoadTexture3D(const std::string& path, int magFilter, int minFilter, int wrapS,
                                           int wrapT, int envMode) {
    const unsigned int known = GetTextureId(path);
    if (known != unknownTexture)
        return known;

    ILuint picture = 0;
    GLuint texture = 0;
    ilGenImages(1, &picture);
    glGenTextures(1, &texture);
    ilBindImage(picture);
    ForgetErrors();
    const bool loaded = ilLoadImage(path.c_str());

    glBindTexture(GL_TEXTURE_3D, texture);
    SetParameters(GL_TEXTURE_3D, magFilter, minFilter, wrapS, wrapT);
    glTexParameteri(GL_TEXTURE_3D, GL_TEXTURE_WRAP_R, GL_CLAMP_TO_EDGE);
    SetEnvironment(envMode);
    if (loaded) {
        const TightRows tight;
        UploadVolume();
    }
    return texture;
}

unsigned int TextureHandler::GetTextureId(const std::string& path) const {
    const auto found = textures.find(path);
    return found == textures.end() ? unknownTexture : found->second;
}

void TextureHandler::DeleteAllTextures() {
    std::vector<GLuint> ids;
    ids.reserve(textures.size());
    for (const auto& [path, id] : textures)
        ids.push_back(id);
    glDeleteTextures(static_cast<GLsizei>(ids.size()), ids.data());
    textures.clear();
}

bool TextureHandler::CheckError() {
    lastError = ilGetError();
    if (lastError == IL_NO_ERROR)
        return true;
    std::cout << " error: " << lastError << '\n';
    return false;
}

}  // namespace tolvane

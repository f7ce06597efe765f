#include "assets/MD2_Store.h"

#include <iostream>

#include "assets/Gl.h"
#include "assets/MD2_Instance.h"
#include "assets/TextureHandler.h"

namespace tolvane {

MD2_Instance* MD2_Store::CreateInstance(const std::string& modelPath, const std::string& texturePath,
                                        const std::string& normalMapPath, float scale) {
    if (!textureHandler) {
        std::cout << "Error: No texture handler defined!!! \n";
        return nullptr;
    }

    std::cout << "MD2 - Model: Checking if already loaded ...\n";
    auto found = models.find(modelPath);
    if (found == models.end()) {
        std::cout << "MD2 - Model: model not loaded yet ...\n";
        found = models.emplace(modelPath, reader.Load(modelPath)).first;
    }
    std::cout << "MD2 - Model: exists!\n";

    const auto loadPicture = [this](const std::string& path) {
        return textureHandler->LoadTexture(path, GL_LINEAR_MIPMAP_LINEAR, GL_LINEAR_MIPMAP_LINEAR,
                                           GL_CLAMP_TO_EDGE, GL_CLAMP_TO_EDGE, GL_MODULATE);
    };
    const unsigned int textureId = loadPicture(texturePath);
    const unsigned int normalMapId =
        normalMapPath.empty() ? TextureHandler::unknownTexture : loadPicture(normalMapPath);
    return new MD2_Instance(found->second.get(), textureId, normalMapId, scale);
}

}  // namespace tolvane

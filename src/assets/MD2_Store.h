#pragma once

#include <map>
#include <memory>
#include <string>

#include "assets/MD2_Model.h"
#include "assets/MD2_Reader.h"

namespace tolvane {

class MD2_Instance;
class TextureHandler;

// Keeps every model that was loaded, one for each path as it was given, and hands out instances of them.
// The models live as long as the store, which has to outlive all its instances.
class MD2_Store {
public:
    MD2_Store() = default;
    // The handler is not owned; it loads the pictures of all instances.
    explicit MD2_Store(TextureHandler* handler) : textureHandler(handler) {}

    // A new instance, owned by the caller, with its pictures loaded; an empty normalMapPath stands for
    // none. scale is a factor on all coordinates. Null where the store has no texture handler; throws as
    // MD2_Reader::Load does.
    MD2_Instance* CreateInstance(const std::string& modelPath, const std::string& texturePath,
                                 const std::string& normalMapPath, float scale);

private:
    std::map<std::string, std::unique_ptr<MD2_Model>> models;
    MD2_Reader reader;
    TextureHandler* textureHandler = nullptr;
};

}  // namespace tolvane

#include "assets/ShaderStore.h"

#include <utility>

namespace tolvane {

ShaderStore::~ShaderStore() {
    FreeAll();
}

ShaderStore::ShaderStore(ShaderStore&& other) noexcept : shaders(std::exchange(other.shaders, {})) {}

ShaderStore& ShaderStore::operator=(ShaderStore&& other) noexcept {
    if (this != &other) {
        FreeAll();
        shaders = std::exchange(other.shaders, {});
    }
    return *this;
}

Shader* ShaderStore::Load(const std::string& name, const std::string& vertexPath,
                          const std::string& fragmentPath) {
    const auto found = shaders.find(name);
    if (found != shaders.end())
        return found->second.get();
    return shaders.emplace(name, std::make_unique<Shader>(vertexPath, fragmentPath)).first->second.get();
}

void ShaderStore::FreeAll() {
    for (const auto& [name, shader] : shaders)
        shader->Free();
}

}  // namespace tolvane

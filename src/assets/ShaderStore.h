#pragma once

#include <map>
#include <memory>
#include <string>

#include "assets/Shader.h"

namespace tolvane {

// Keeps the shaders by name and frees them at its end. A store that was moved from is empty.
class ShaderStore {
public:
    ShaderStore() = default;
    ~ShaderStore();
    ShaderStore(ShaderStore&& other) noexcept;
    ShaderStore& operator=(ShaderStore&& other) noexcept;

    // The shader of that name, made on the first call; owned by the store. Throws as Shader does.
    Shader* Load(const std::string& name, const std::string& vertexPath, const std::string& fragmentPath);

private:
    void FreeAll();

    std::map<std::string, std::unique_ptr<Shader>> shaders;
};

}  // namespace tolvane

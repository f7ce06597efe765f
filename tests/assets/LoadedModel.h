#pragma once

#include <memory>
#include <vector>

#include "assets/MD2_Instance.h"
#include "assets/MD2_Model.h"
#include "support/Md2File.h"

namespace tolvane::test {

// A model that went through a real file, without the console text of that.
std::unique_ptr<MD2_Model> LoadModel(const std::vector<std::uint8_t>& bytes);
std::unique_ptr<MD2_Model> LoadModel(const Md2File& file);

// An instance of it, silent as well.
std::unique_ptr<MD2_Instance> MakeInstance(MD2_Model& model, float scale = 1.0f, unsigned int texture = 0);

// The positions and normals of an instance's vertex buffer.
struct Mesh {
    std::vector<float> vertices;
    std::vector<float> normals;
};
Mesh ReadVertexBuffer(const MD2_Instance& instance);

}  // namespace tolvane::test

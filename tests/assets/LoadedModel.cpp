#include "assets/LoadedModel.h"

#include "assets/Gl.h"
#include "assets/MD2_Reader.h"
#include "support/GlWindow.h"
#include "support/TemporaryFile.h"

namespace tolvane::test {

std::unique_ptr<MD2_Model> LoadModel(const std::vector<std::uint8_t>& bytes) {
    const TemporaryFile file(bytes, ".md2");
    std::unique_ptr<MD2_Model> model;
    PrintedBy([&] { model = MD2_Reader().Load(file.Path()); });
    return model;
}

std::unique_ptr<MD2_Model> LoadModel(const Md2File& file) {
    return LoadModel(file.Bytes());
}

std::unique_ptr<MD2_Instance> MakeInstance(MD2_Model& model, float scale, unsigned int texture) {
    std::unique_ptr<MD2_Instance> instance;
    PrintedBy([&] { instance = std::make_unique<MD2_Instance>(&model, texture, 0, scale); });
    return instance;
}

Mesh ReadVertexBuffer(const MD2_Instance& instance) {
    const std::size_t floats = instance.GetVertexArray().size();
    const auto half = static_cast<GLsizeiptrARB>(floats * sizeof(float));
    Mesh mesh{std::vector<float>(floats), std::vector<float>(floats)};
    glBindBufferARB(GL_ARRAY_BUFFER, instance.GetVertexBuffer());
    glGetBufferSubDataARB(GL_ARRAY_BUFFER, 0, half, mesh.vertices.data());
    glGetBufferSubDataARB(GL_ARRAY_BUFFER, half, half, mesh.normals.data());
    glBindBufferARB(GL_ARRAY_BUFFER, 0);
    return mesh;
}

}  // namespace tolvane::test

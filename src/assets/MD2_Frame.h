#pragma once

#include <array>
#include <vector>

#include "assets/MD2_Format.h"

namespace tolvane {

// A vertex in the model's own units; the axes are those of the file.
struct MD2_Vertex {
    float x = 0.0f;
    float y = 0.0f;
    float z = 0.0f;
    int normalIndex = 0;  // into MD2_VertexNormals, always within it
};

// One pose of a model.
struct MD2_Frame {
    std::array<float, 3> scale{};
    std::array<float, 3> translate{};
    std::array<char, 16> name{};  // ends at its first zero, or is 16 characters long
    std::vector<MD2_PackedVertex> packedVertices;
    std::vector<MD2_Vertex> vertices;  // the packed ones times scale plus translate
};

}  // namespace tolvane

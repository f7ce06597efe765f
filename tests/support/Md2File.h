#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "assets/MD2_Format.h"

namespace tolvane::test {

// A frame to be written: its name, and the vertices as x, y, z and index of the normal in steps of scale.
struct Md2FileFrame {
    std::string name;
    std::vector<MD2_PackedVertex> vertices;
    std::array<float, 3> scale{1.0f, 1.0f, 1.0f};
    std::array<float, 3> translate{};
};

// Builds an MD2 model and puts out the bytes of its file; every frame needs the same number of vertices.
//
//     Md2File model;
//     model.triangles = {{{0, 1, 2}, {0, 1, 2}}};
//     model.texCoords = {{0, 0}, {64, 0}, {0, 64}};
//     model.frames = {{"stand0", {{0, 0, 0, 5}, {9, 0, 0, 5}, {0, 9, 0, 5}}}};
//     const TemporaryFile file(model.Bytes(), ".md2");
//     store.CreateInstance(file.Path(), ...);
struct Md2File {
    std::int32_t skinWidth = 64;
    std::int32_t skinHeight = 64;
    std::vector<std::string> skins;
    std::vector<MD2_TexCoord> texCoords;
    std::vector<MD2_Triangle> triangles;
    std::vector<Md2FileFrame> frames;
    std::vector<std::int32_t> commands;

    // What stands at the start of Bytes.
    MD2_Header Header() const;
    std::vector<std::uint8_t> Bytes() const;
};

// A square of 10 by 10 model units in the plane z = 0, about the origin, that faces +z; clockwise triangles
// make its front. In frame i of those named it stands i units higher, so that each frame can be told apart.
// The whole picture lies on it upright.
Md2File SquareModel(const std::vector<std::string>& frameNames);

}  // namespace tolvane::test

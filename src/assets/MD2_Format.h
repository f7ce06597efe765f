#pragma once

#include <array>
#include <cstdint>

namespace tolvane {

// The records of an MD2 file, byte for byte and little-endian.

constexpr std::int32_t md2Ident = 0x32504449;  // "IDP2"
constexpr std::int32_t md2Version = 8;

struct MD2_Header {
    std::int32_t ident = 0;
    std::int32_t version = 0;
    std::int32_t skinWidth = 0;  // pixels; divides the s of a texture coordinate
    std::int32_t skinHeight = 0;
    std::int32_t frameSize = 0;
    std::int32_t numSkins = 0;
    std::int32_t numVertices = 0;  // in each frame
    std::int32_t numTexCoords = 0;
    std::int32_t numTriangles = 0;
    std::int32_t numGlCommands = 0;  // words
    std::int32_t numFrames = 0;
    std::int32_t offsetSkins = 0;  // all offsets in bytes from the start of the file
    std::int32_t offsetTexCoords = 0;
    std::int32_t offsetTriangles = 0;
    std::int32_t offsetFrames = 0;
    std::int32_t offsetGlCommands = 0;
    std::int32_t offsetEnd = 0;
};
static_assert(sizeof(MD2_Header) == 68);

// In pixels of the skin, t counted from the top.
struct MD2_TexCoord {
    std::int16_t s = 0;
    std::int16_t t = 0;
};
static_assert(sizeof(MD2_TexCoord) == 4);

struct MD2_Triangle {
    std::array<std::uint16_t, 3> vertexIndices{};
    std::array<std::uint16_t, 3> texCoordIndices{};
};
static_assert(sizeof(MD2_Triangle) == 12);

// A vertex in steps of its frame's scale, and the index of its normal in MD2_VertexNormals.
struct MD2_PackedVertex {
    std::uint8_t x = 0;
    std::uint8_t y = 0;
    std::uint8_t z = 0;
    std::uint8_t normalIndex = 0;
};
static_assert(sizeof(MD2_PackedVertex) == 4);

}  // namespace tolvane

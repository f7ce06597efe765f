#pragma once

#include <map>
#include <string>
#include <vector>

#include "assets/MD2_Format.h"
#include "assets/MD2_Frame.h"

namespace tolvane {

// A named group of consecutive frames.
struct MD2Anim {
    int firstFrame = 0;
    int lastFrame = 0;
    int frameCount = 0;  // lastFrame minus firstFrame: one less than there are frames
};

// A pair of GL texture coordinates.
struct MD2_TexturePoint {
    float u = 0.0f;
    float v = 0.0f;
};

// What all instances of one model file share. It never changes once it is made, and it draws the mesh
// that an instance hands it. Needs the GL context from its making to its end.
class MD2_Model {
public:
    // Takes what was read from a file. The counts of the header become those of the blocks that come with it,
    // an index that points outside its block becomes 0, and there is always a frame 0 with a vertex 0, so
    // that nobody has to check again.
    MD2_Model(const MD2_Header& fileHeader, std::vector<MD2_TexCoord> texCoordBlock,
              std::vector<MD2_Triangle> triangleBlock, std::vector<MD2_Frame> frameBlock);
    ~MD2_Model();
    MD2_Model(const MD2_Model&) = delete;
    MD2_Model& operator=(const MD2_Model&) = delete;

    // The frame group of that name, or null. It lives as long as the model.
    const MD2Anim* GetAnimation(const std::string& name) const;

    const MD2_Header& GetHeader() const { return header; }
    const std::vector<MD2_TexCoord>& GetTexCoords() const { return fileTexCoords; }
    const std::vector<MD2_Triangle>& GetTriangles() const { return triangles; }
    const std::vector<MD2_Frame>& GetFrames() const { return frames; }
    const std::map<std::string, MD2Anim>& GetAnimations() const { return animations; }
    // Texture coordinates as they are drawn, three a triangle.
    const std::vector<MD2_TexturePoint>& GetTexturePoints() const { return texCoords; }
    unsigned int GetTextureCoordBuffer() const { return textureCoordBuffer; }

    // Draw the plain triangle list. Positions and normals are three floats a corner, three corners a
    // triangle; in the buffer the normals stand behind all the positions.
    void DrawImmediate(const float* vertices, const float* normals) const;
    void DrawVertexArray(const float* vertices, const float* normals) const;
    // Draws nothing where the driver has no buffers.
    void DrawVBO(unsigned int vertexBuffer) const;

private:
    void CompleteBlocks();
    void RepairIndices();
    void GroupFrames();
    void BuildTexturePoints();
    void BuildTextureCoordBuffer();
    void DrawCorners() const;

    std::vector<MD2_TexturePoint> texCoords;
    std::map<std::string, MD2Anim> animations;
    MD2_Header header;
    std::vector<MD2_TexCoord> fileTexCoords;
    std::vector<MD2_Triangle> triangles;
    std::vector<MD2_Frame> frames;
    unsigned int textureCoordBuffer = 0;
};

}  // namespace tolvane

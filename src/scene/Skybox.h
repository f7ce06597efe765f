#pragma once

#include <vector>

#include "scene/DrawAble.h"

namespace tolvane {

// A textured cube about the origin of the current matrix, drawn behind everything.
class Skybox final : public DrawAble {
public:
    // Half the edge of the cube, world units, and six GL textures, which stay the caller's: up, down, front,
    // back, left, right. Throws std::out_of_range for fewer than six. Needs a GL context.
    Skybox(float halfEdge, const std::vector<unsigned int>& sixTextures);

    // Writes no depth; leaves texturing and lighting on.
    void Draw(int renderMode, bool useDisplayLists, bool selectionPass, bool blending,
              const Vertex* eyePosition, const Vertex* lightPosition) override;
    void Update(int renderMode, float dt) override;
    void BuildDisplayLists() override;

private:
    void DrawCube() const;

    float size;
    std::vector<unsigned int> textures;
};

}  // namespace tolvane

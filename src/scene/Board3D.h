#pragma once

#include "scene/DrawAble.h"

namespace tolvane {

class Field3D;

// The selectable board as the renderer knows it.
class Board3D : public DrawAble {
public:
    // The lower corners of the outermost fields, world units; set by the derived class.
    float minX = 0.0f;
    float maxX = 0.0f;
    float minZ = 0.0f;
    float maxZ = 0.0f;

    void Draw(int renderMode, bool useDisplayLists, bool selectionPass, bool blending,
              const Vertex* eyePosition, const Vertex* lightPosition) override = 0;
    void Update(int renderMode, float dt) override = 0;

    // The field at row times 8 plus column; owned by the board.
    virtual Field3D* GetField(unsigned int index) = 0;

protected:
    ~Board3D() = default;
};

}  // namespace tolvane

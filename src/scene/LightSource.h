#pragma once

#include "scene/DrawAble.h"

namespace tolvane {

// A drawable that sets the light of the frame where it is drawn.
class LightSource : public DrawAble {
public:
    void Draw(int renderMode, bool useDisplayLists, bool selectionPass, bool blending,
              const Vertex* eyePosition, const Vertex* lightPosition) override = 0;
    void Update(int renderMode, float dt) override = 0;

protected:
    ~LightSource() = default;
};

}  // namespace tolvane

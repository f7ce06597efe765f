#pragma once

#include "scene/Element3D.h"

namespace tolvane {

// One square of the selection grid. The grid draws it; the field only remembers its highlight.
class Field3D final : public Element3D {
public:
    Field3D(unsigned int atColumn, unsigned int atRow);

    void Draw(int renderMode, bool useDisplayLists, bool selectionPass, bool blending,
              const Vertex* eyePosition, const Vertex* lightPosition) override;
    void Update(int renderMode, float dt) override;

    // 0 none, 1 the selected field, 2 a reachable field, 3 the target of the running move.
    virtual void SetHighlight(int code);
    virtual int GetHighlight();

private:
    int highlight = 0;
};

}  // namespace tolvane

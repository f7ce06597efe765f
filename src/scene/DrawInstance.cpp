#include "scene/DrawInstance.h"

#include "assets/MD2_Instance.h"
#include "scene/DrawAble.h"

namespace tolvane {

void DrawInstance(MD2_Instance& instance, int renderMode, bool selectionPass, Shader* shader,
                  const Vertex* eyePosition, const Vertex* lightPosition) {
    switch (renderMode) {
        case renderVertexBuffer: return instance.DrawVBO(selectionPass, shader, eyePosition, lightPosition);
        case renderVertexArray:
            return instance.DrawVertexArray(selectionPass, shader, eyePosition, lightPosition);
        case renderImmediate:
            return instance.DrawImmediate(selectionPass, shader, eyePosition, lightPosition);
    }
}

}  // namespace tolvane

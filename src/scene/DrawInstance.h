#pragma once

namespace tolvane {

class MD2_Instance;
class Shader;
struct Vertex;

// Draws a model's instance at the current matrix in the way that renderMode asks for (a RenderMode of
// DrawAble). In the selection pass material and texture are left out. The shader and the positions may be
// null.
void DrawInstance(MD2_Instance& instance, int renderMode, bool selectionPass, Shader* shader,
                  const Vertex* eyePosition, const Vertex* lightPosition);

}  // namespace tolvane

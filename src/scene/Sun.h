#pragma once

#include "scene/Light.h"
#include "scene/LightSource.h"

namespace tolvane {

class MD2_Instance;
class Shader;

// The one light of the game and its glowing body. Its position is where the light comes from.
class Sun final : public LightSource {
public:
    // Owns neither; the shader may be null. Sets the emission of the instance's material.
    Sun(MD2_Instance* sunInstance, Shader* sunShader);

    // Sets the light, in the selection pass too, then draws the body. Leaves lighting on.
    void Draw(int renderMode, bool useDisplayLists, bool selectionPass, bool blending,
              const Vertex* eyePosition, const Vertex* lightPosition) override;
    void Update(int renderMode, float dt) override;

    // Turns the body about its axis for dt seconds, one turn in 28.8; the angle grows without end. Always
    // false.
    virtual bool Spin(float dt);

private:
    MD2_Instance* instance;
    Shader* shader;
    Light light;
};

}  // namespace tolvane

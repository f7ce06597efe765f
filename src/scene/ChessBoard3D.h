#pragma once

#include "scene/DrawAble.h"

namespace tolvane {

class MD2_Instance;
class ParticleEffect;
class Shader;

// The board that the players see: one still model, and a flame at each of its four corners while the camera
// is away from it. It cannot be picked.
class ChessBoard3D final : public DrawAble {
public:
    // Owns none of the three; they must outlive the board. The shader may be null. Sets the instance's clip
    // and material.
    ChessBoard3D(MD2_Instance* boardInstance, Shader* boardShader, ParticleEffect* flames);

    // Moves the flames on, then draws. The eye position may be null in the selection pass alone.
    void Draw(int renderMode, bool useDisplayLists, bool selectionPass, bool blending,
              const Vertex* eyePosition, const Vertex* lightPosition) override;
    void Update(int renderMode, float dt) override;
    bool UpdateEffects(float dt, const Vertex* eyePosition) override;

    // Whether the last Draw showed the flames.
    bool FlamesVisible() const { return flamesVisible; }

private:
    MD2_Instance* instance;
    Shader* shader;
    ParticleEffect* effect;
    bool flamesVisible = false;
    float frameTime = 0.0f;  // seconds
};

}  // namespace tolvane

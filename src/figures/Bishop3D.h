#pragma once

#include "figures/EquippedFigure3D.h"

namespace tolvane {

// The bishop: three bursts of two shots make one attack.
class Bishop3D final : public EquippedFigure3D {
public:
    // Nothing of what is passed in is owned.
    Bishop3D(int atColumn, int atRow, Player ofPlayer, FigureType type, MD2_Instance* ofInstance,
             Shader* withShader, TextureHandler* textures, SoundManager* withSound);

    bool RunAttack(float dt, const Vertex* eyePosition) override;

private:
    unsigned int burstCount = 0;  // bursts of the running attack that are followed by another
};

}  // namespace tolvane

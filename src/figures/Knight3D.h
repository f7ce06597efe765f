#pragma once

#include "figures/EquippedFigure3D.h"

namespace tolvane {

// The knight: it rises, flies over whatever stands between, and settles. Its gun pours straight down.
class Knight3D final : public EquippedFigure3D {
public:
    // Nothing of what is passed in is owned.
    Knight3D(int atColumn, int atRow, Player ofPlayer, FigureType type, MD2_Instance* ofInstance,
             Shader* withShader, TextureHandler* textures, SoundManager* withSound);

    // One step of a flight of two fields one way and one the other, at the knight's own speed, without sound
    // and clip. Arrival is a window of 0.06 units that a long step flies past, so steps should be short.
    bool Walk(float dt) override;

    // One step up to the height of flight; true when it is reached.
    bool Rise(float dt);
    // One step down; true on the ground, where the next clip of the list begins.
    bool Descend(float dt);
    void PlayStartEndSound();

private:
    [[maybe_unused]] unsigned int burstCount = 0;  // a knight's attack is one burst: stays 0
};

}  // namespace tolvane

#pragma once

#include "figures/EquippedFigure3D.h"

namespace tolvane {

// The pawn: two barrels, right and left, a quarter of a second apart.
class Pawn3D final : public EquippedFigure3D {
public:
    // Nothing of what is passed in is owned.
    Pawn3D(int atColumn, int atRow, Player ofPlayer, FigureType type, MD2_Instance* ofInstance,
           Shader* withShader, TextureHandler* textures, SoundManager* withSound);
};

}  // namespace tolvane

#pragma once

#include "figures/EquippedFigure3D.h"

namespace tolvane {

// The rook: one heavy shot from two barrels at once.
class Rook3D final : public EquippedFigure3D {
public:
    // Nothing of what is passed in is owned.
    Rook3D(int atColumn, int atRow, Player ofPlayer, FigureType type, MD2_Instance* ofInstance,
           Shader* withShader, TextureHandler* textures, SoundManager* withSound);

protected:
    void DrawShots(bool blending) override;
};

}  // namespace tolvane

#include "figures/Pawn3D.h"

#include "figures/FigureValues.h"

namespace tolvane {

Pawn3D::Pawn3D(int atColumn, int atRow, Player ofPlayer, FigureType type, MD2_Instance* ofInstance,
               Shader* withShader, TextureHandler* textures, SoundManager* withSound)
    : EquippedFigure3D(atColumn, atRow, ofPlayer, type, ValuesOf(FigureType::Pawn), ofInstance, withShader,
                       textures, withSound) {}

}  // namespace tolvane

#include "figures/Rook3D.h"

#include "assets/Gl.h"
#include "figures/FigureValues.h"

namespace tolvane {

namespace {

constexpr float barrelDistance = 2.5f;

}  // namespace

Rook3D::Rook3D(int atColumn, int atRow, Player ofPlayer, FigureType type, MD2_Instance* ofInstance,
               Shader* withShader, TextureHandler* textures, SoundManager* withSound)
    : EquippedFigure3D(atColumn, atRow, ofPlayer, type, ValuesOf(FigureType::Rook), ofInstance, withShader,
                       textures, withSound) {}

void Rook3D::DrawShots(bool blending) {
    // One emitter serves both barrels.
    EquippedFigure3D::DrawShots(blending);
    glPushMatrix();
    glTranslatef(-barrelDistance, 0.0f, 0.0f);
    EquippedFigure3D::DrawShots(blending);
    glPopMatrix();
}

}  // namespace tolvane

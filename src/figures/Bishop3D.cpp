#include "figures/Bishop3D.h"

#include "figures/FigureValues.h"

namespace tolvane {

namespace {

constexpr unsigned int repeatedBursts = 2;

}  // namespace

Bishop3D::Bishop3D(int atColumn, int atRow, Player ofPlayer, FigureType type, MD2_Instance* ofInstance,
                   Shader* withShader, TextureHandler* textures, SoundManager* withSound)
    : EquippedFigure3D(atColumn, atRow, ofPlayer, type, ValuesOf(FigureType::Bishop), ofInstance, withShader,
                       textures, withSound) {}

bool Bishop3D::RunAttack(float dt, const Vertex* eyePosition) {
    if (!attackActive)
        return true;
    if (!EquippedFigure3D::RunAttack(dt, eyePosition))
        return false;
    if (burstCount == repeatedBursts) {
        burstCount = 0;
        return true;
    }
    ++burstCount;
    attackActive = true;
    firstShotPending = true;
    secondShotPending = true;
    return false;
}

}  // namespace tolvane

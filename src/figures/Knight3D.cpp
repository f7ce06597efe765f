#include "figures/Knight3D.h"

#include <cmath>
#include <cstdlib>

#include "assets/MD2_Instance.h"
#include "assets/Numbers.h"
#include "figures/FigureValues.h"

namespace tolvane {

namespace {

constexpr float flightSpeed = 0.9428181f;  // along the shorter way; twice that along the longer
constexpr float flightHeight = 2.7f;
constexpr float climbSpeed = 1.4142271f;
constexpr float sinkSpeed = 0.70711356f;
constexpr float arrivalWindow = 0.03f;

}  // namespace

Knight3D::Knight3D(int atColumn, int atRow, Player ofPlayer, FigureType type, MD2_Instance* ofInstance,
                   Shader* withShader, TextureHandler* textures, SoundManager* withSound)
    : EquippedFigure3D(atColumn, atRow, ofPlayer, type, ValuesOf(FigureType::Knight), ofInstance, withShader,
                       textures, withSound) {}

bool Knight3D::Walk(float dt) {
    const int columns = targetColumn - Column();
    const int rows = targetRow - Row();
    const bool moreColumns = std::abs(columns) > std::abs(rows);
    const float speedX = moreColumns ? 2.0f * flightSpeed : flightSpeed;
    const float speedZ = moreColumns ? flightSpeed : 2.0f * flightSpeed;
    position.x += static_cast<float>(Sign(columns)) * speedX * dt;
    position.z += static_cast<float>(Sign(-rows)) * speedZ * dt;
    if (std::fabs(position.x - targetX) >= arrivalWindow && std::fabs(position.z - targetZ) >= arrivalWindow)
        return false;
    TakeTarget();
    return true;
}

bool Knight3D::Rise(float dt) {
    if (position.y < flightHeight) {
        position.y += climbSpeed * dt;
        return false;
    }
    position.y = flightHeight;
    return true;
}

bool Knight3D::Descend(float dt) {
    if (position.y > 0.0f) {
        position.y -= sinkSpeed * dt;
        return false;
    }
    position.y = 0.0f;
    instance->NextAnimation();
    return true;
}

void Knight3D::PlayStartEndSound() {
    PlayOnce("media/knightStartEnd.wav");
}

}  // namespace tolvane

#include "figures/King3D.h"

#include "assets/MD2_Instance.h"
#include "assets/ParticleEffect.h"
#include "figures/FigureValues.h"
#include "scene/DrawInstance.h"

namespace tolvane {

namespace {

constexpr float blowDelay = 0.25f;  // until the blow lands, and from there to the end
constexpr float explosionTime = 2.0f;

}  // namespace

King3D::King3D(int atColumn, int atRow, Player ofPlayer, FigureType type, MD2_Instance* ofInstance,
               Shader* withShader, TextureHandler* textures, SoundManager* withSound)
    : EquippedFigure3D(atColumn, atRow, ofPlayer, type, ValuesOf(FigureType::King), ofInstance, withShader,
                       textures, withSound) {}

void King3D::Draw(int renderMode, bool, bool selectionPass, bool blending, const Vertex* eyePosition,
                  const Vertex* lightPosition) {
    BeginFadedDrawing(blending);
    ApplyStandardTransform();
    DrawInstance(*instance, renderMode, selectionPass, shader, eyePosition, lightPosition);
    if (!selectionPass)
        DrawEffects(blending);
    EndFadedDrawing();
}

void King3D::DrawEffects(bool blending) {
    if (damageActive)
        damageEmitter->DrawParticles(blending);
}

bool King3D::RunDamage(float dt, const Vertex* eyePosition) {
    if (!damageActive)
        return true;
    effectTimer += dt;
    damageEmitter->UpdateParticles(dt, eyePosition);
    if (effectTimer <= explosionTime)
        return false;
    damageActive = false;
    effectTimer = 0.0f;
    damageEmitter->Restart();
    return true;
}

bool King3D::RunAttack(float dt, const Vertex*) {
    if (!attackActive)
        return true;
    if (firstShotPending) {
        effectTimer = 0.0f;
        firstShotPending = false;
    }
    effectTimer += dt;
    if (effectTimer <= blowDelay)
        return false;
    if (secondShotPending) {
        effectTimer = 0.0f;
        PlayOnce("media/kingAttack.wav");
        secondShotPending = false;
        return false;
    }
    attackActive = false;
    return true;
}

void King3D::PlayExplosionSound() {
    PlayOnce("media/kingExplode.wav");
}

void King3D::PlaySelfDestructSound() {
    PlayOnce("media/kingSelfDestructStart.wav");
}

}  // namespace tolvane

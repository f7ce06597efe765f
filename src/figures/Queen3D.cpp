#include "figures/Queen3D.h"

#include <cstddef>
#include <utility>

#include "assets/Gl.h"
#include "assets/MD2_Instance.h"
#include "assets/Numbers.h"
#include "assets/ParticleEffect3.h"
#include "assets/SoundManager.h"
#include "figures/FigureValues.h"
#include "scene/DrawInstance.h"

namespace tolvane {

namespace {

constexpr const char* transformationSound = "media/queenTransformation.wav";
constexpr int transformationFade = 500;  // milliseconds
constexpr const char* ufoSound = "media/queenUfo.wav";
constexpr int ufoVolume = 60;
constexpr int ufoFade = 3000;
constexpr int ufoEngageVolume = 90;
constexpr int forEver = -1;

// Can or saucer at a place of the world; lit by the shader, or blended without one.
void DrawProp(MD2_Instance& prop, const Vertex& place, int renderMode, bool selectionPass, Shader* shader,
              const Vertex* eyePosition, const Vertex* lightPosition) {
    glPushMatrix();
    glTranslatef(place.x, place.y, place.z);
    if (!shader) {
        glEnable(GL_BLEND);
        glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    }
    DrawInstance(prop, renderMode, selectionPass, shader, eyePosition, lightPosition);
    if (!shader)
        glDisable(GL_BLEND);
    glPopMatrix();
}

}  // namespace

Queen3D::Queen3D(int atColumn, int atRow, Player ofPlayer, FigureType type, MD2_Instance* ofInstance,
                 std::vector<MD2_Instance*> withCans, MD2_Instance* withUfo, Shader* withShader,
                 TextureHandler* textures, SoundManager* withSound)
    : EquippedFigure3D(atColumn, atRow, ofPlayer, type, ValuesOf(FigureType::Queen), ofInstance, withShader,
                       textures, withSound),
      engineEmitter(new ParticleEffect3(textures)),
      cans(std::move(withCans)),
      canStandAnimation{"stand", MD2_AnimationMode::Loop, 1.0f},
      canFrozenAnimation{"run", MD2_AnimationMode::Freeze, 1.0f},
      canDropList({{"run", MD2_AnimationMode::Sequence, 1.0f}, canStandAnimation}),
      ufo(withUfo),
      ufoAnimation{"run", MD2_AnimationMode::Loop, 5.0f},
      beamEmitter(textures),
      glowEmitter(textures) {
    ChooseCan();
    Tune(*engineEmitter, queenEngineValues);
    can->SetAnimation(canFrozenAnimation);
    ufo->SetAnimation(ufoAnimation);
}

Queen3D::~Queen3D() {
    delete engineEmitter;
}

void Queen3D::ChooseCan() {
    can = cans[static_cast<std::size_t>(RandomInRange(1, static_cast<int>(cans.size())) - 1)];
}

void Queen3D::Draw(int renderMode, bool useDisplayLists, bool selectionPass, bool blending,
                   const Vertex* eyePosition, const Vertex* lightPosition) {
    // Before her own transformation: these stand in the world, not with her.
    if (canVisible)
        DrawCan(renderMode, useDisplayLists, selectionPass, eyePosition, lightPosition);
    if (ufoVisible)
        DrawUfo(renderMode, useDisplayLists, selectionPass, eyePosition, lightPosition);
    if (beamActive && !selectionPass)
        beamEmitter.DrawParticles(blending);
    EquippedFigure3D::Draw(renderMode, useDisplayLists, selectionPass, blending, eyePosition, lightPosition);
}

void Queen3D::DrawEffects(bool blending) {
    if (attackActive)
        DrawShots(blending);
    if (glowActive)
        glowEmitter.DrawParticles(blending);
    if (damageActive)
        damageEmitter->DrawParticles(blending);
    if (engineActive)
        engineEmitter->DrawParticles(blending);
    if (heavyDamageActive)
        heavyDamageEmitter->DrawParticles(blending);
}

void Queen3D::DrawCan(int renderMode, bool, bool selectionPass, const Vertex* eyePosition,
                      const Vertex* lightPosition) {
    canShader = canLit ? shader : nullptr;
    DrawProp(*can, canPosition, renderMode, selectionPass, canShader, eyePosition, lightPosition);
}

void Queen3D::DrawUfo(int renderMode, bool, bool selectionPass, const Vertex* eyePosition,
                      const Vertex* lightPosition) {
    ufoShader = ufoLit ? shader : nullptr;
    DrawProp(*ufo, ufoPosition, renderMode, selectionPass, ufoShader, eyePosition, lightPosition);
}

void Queen3D::Update(int renderMode, float dt) {
    EquippedFigure3D::Update(renderMode, dt);
    if (canVisible)
        canAnimationFinished = can->Animate(renderMode, dt);
    if (ufoVisible)
        ufoAnimationFinished = ufo->Animate(renderMode, dt);
}

bool Queen3D::UpdateEffects(float dt, const Vertex* eyePosition) {
    if (beamActive)
        beamEmitter.UpdateParticles(dt, eyePosition);
    if (glowActive)
        glowEmitter.UpdateParticles(dt, eyePosition);
    if (engineActive)
        engineEmitter->UpdateParticles(dt, eyePosition);
    return EquippedFigure3D::UpdateEffects(dt, eyePosition);
}

void Queen3D::SetTarget(int toColumn, int toRow, float fieldSize) {
    EquippedFigure3D::SetTarget(toColumn, toRow, fieldSize);
    busy = true;
}

bool Queen3D::RunAttack(float, const Vertex*) {
    return true;
}

void Queen3D::StartTransformationSound() {
    PlayOnce(transformationSound);
}

void Queen3D::StopTransformationSound() {
    sound->FadeOutSample(transformationSound, transformationFade);
}

void Queen3D::PlayDropCanSound() {
    PlayOnce("media/queenDropCan.wav");
}

void Queen3D::StartUfoSound() {
    sound->PlaySample(ufoSound, ufoVolume, forEver);
}

void Queen3D::StopUfoSound() {
    sound->FadeOutSample(ufoSound, ufoFade);
}

void Queen3D::PlayUfoBeamSound() {
    PlayOnce("media/queenUfoBeam.wav");
}

void Queen3D::PlayUfoEngageSound() {
    sound->PlaySample("media/queenUfoEngage.wav", ufoEngageVolume, 0);
}

}  // namespace tolvane

#include "figures/EquippedFigure3D.h"

#include <vector>

#include "assets/Gl.h"
#include "assets/MD2_Instance.h"
#include "assets/Material.h"
#include "assets/ParticleEffect.h"
#include "assets/ParticleEffect4.h"
#include "assets/SoundManager.h"
#include "figures/FigureValues.h"
#include "scene/DrawInstance.h"

namespace tolvane {

namespace {

constexpr int fullVolume = 128;
constexpr float alphaPerSecond = 0.5f;
constexpr float hitTime = 0.45f;
constexpr int moveSoundFade = 50;  // milliseconds

MD2_Animation ClipOf(const ClipValues& clip) {
    return {clip.name, clip.mode, clip.speed};
}

AnimationList ListOf(const ClipList& clips) {
    std::vector<MD2_Animation> list;
    for (const ClipValues& clip : clips)
        if (clip.name)
            list.push_back(ClipOf(clip));
    return AnimationList(list);
}

std::vector<std::string> Collect(const SoundPaths& paths) {
    std::vector<std::string> list;
    for (const char* path : paths)
        if (path)
            list.emplace_back(path);
    return list;
}

// A plain ParticleEffect with a preset's settings, so that it is deleted as what it is.
ParticleEffect* MakeEmitter(TextureHandler* textures, const EmitterValues& tuning) {
    auto* emitter = new ParticleEffect(ParticleEffect4(textures));
    Tune(*emitter, tuning);
    return emitter;
}

}  // namespace

EquippedFigure3D::EquippedFigure3D(int atColumn, int atRow, Player ofPlayer, FigureType type,
                                   const FigureValues& kind, MD2_Instance* ofInstance, Shader* withShader,
                                   TextureHandler* textures, SoundManager* withSound)
    : ChessFigure3D(atColumn, atRow, ofPlayer, type, ofInstance, withShader, withSound), values(kind) {
    SetUpClips();
    SetUpMaterial();
    if (player == Player::Black)
        RotateY(180.0f);
    walkSpeed = values.walkSpeed;
    SetUpEmitters(textures);
    SetUpSounds();
}

void EquippedFigure3D::SetUpClips() {
    standAnimation = ClipOf(values.stand);
    damageAnimation = {"damage", MD2_AnimationMode::Once, 1.0f};
    runList = ListOf(values.run);
    attackAnimations = new MD2_Animation[]{{"attack", MD2_AnimationMode::Once, 1.0f}};
    deathList = ListOf(values.death);
    SetAnimation(standAnimation);
}

void EquippedFigure3D::SetUpMaterial() {
    const MaterialValues& paint = values.material;
    Material& material = *instance->GetMaterial();
    material.SetAmbient(paint.ambient, paint.ambient, paint.ambient, 1.0f);
    material.SetDiffuse(paint.diffuse, paint.diffuse, paint.diffuse, 1.0f);
    material.SetSpecular(paint.specular, paint.specular, paint.specular, 1.0f);
    material.SetShininess(paint.shininess);
}

void EquippedFigure3D::SetUpEmitters(TextureHandler* textures) {
    if (values.attackEmitter)
        attackEmitter = MakeEmitter(textures, *values.attackEmitter);
    damageEmitter = MakeEmitter(textures, values.damageEmitter);
    if (values.heavyDamageEmitter)
        heavyDamageEmitter = MakeEmitter(textures, *values.heavyDamageEmitter);
}

void EquippedFigure3D::SetUpSounds() {
    selectedSounds = Collect(values.selectedSounds);
    ackSounds = Collect(values.ackSounds);
    for (const SoundPaths& paths :
         {SoundPaths{values.attack.first.sound, values.moveSound.path}, values.deathSounds,
          values.otherSounds, values.selectedSounds, values.ackSounds})
        for (const std::string& path : Collect(paths))
            sound->LoadSample(path);
}

void EquippedFigure3D::Draw(int renderMode, bool, bool selectionPass, bool blending,
                            const Vertex* eyePosition, const Vertex* lightPosition) {
    ApplyStandardTransform();
    BeginFadedDrawing(blending);
    DrawInstance(*instance, renderMode, selectionPass, shader, eyePosition, lightPosition);
    if (!selectionPass)
        DrawEffects(blending);
    EndFadedDrawing();
}

void EquippedFigure3D::DrawEffects(bool blending) {
    if (attackActive)
        DrawShots(blending);
    if (damageActive)
        damageEmitter->DrawParticles(blending);
    if (heavyDamageActive)
        heavyDamageEmitter->DrawParticles(blending);
}

void EquippedFigure3D::DrawShots(bool blending) {
    attackEmitter->DrawParticles(blending);
}

void EquippedFigure3D::BeginFadedDrawing(bool blending) const {
    if (shader || !blending)
        return;
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
}

void EquippedFigure3D::EndFadedDrawing() const {
    if (!shader)
        glDisable(GL_BLEND);
}

bool EquippedFigure3D::FadeOut(float dt, const Vertex*) {
    shader = nullptr;
    float& alpha = instance->GetMaterial()->GetColor()[3];
    alpha -= dt * alphaPerSecond;
    if (alpha > 0.0f)
        return false;
    alpha = 0.0f;
    active = false;
    return true;
}

bool EquippedFigure3D::RunDamage(float dt, const Vertex* eyePosition) {
    if (!damageActive && !heavyDamageActive)
        return true;
    effectTimer += dt;
    (heavyDamageActive ? heavyDamageEmitter : damageEmitter)->UpdateParticles(dt, eyePosition);
    if (effectTimer <= hitTime)
        return false;
    damageActive = false;
    heavyDamageActive = false;
    effectTimer = 0.0f;
    damageEmitter->Restart();
    heavyDamageEmitter->Restart();
    return true;
}

bool EquippedFigure3D::RunAttack(float dt, const Vertex* eyePosition) {
    if (!attackActive)
        return true;
    if (firstShotPending) {
        firstShotPending = false;
        Fire(values.attack.first);
    }
    effectTimer += dt;
    attackEmitter->UpdateParticles(dt, eyePosition);
    if (effectTimer <= values.attack.delay)
        return false;
    if (values.attack.second && secondShotPending) {
        secondShotPending = false;
        Fire(*values.attack.second);
        return false;
    }
    attackActive = false;
    return true;
}

void EquippedFigure3D::Fire(const ShotValues& shot) {
    attackEmitter->SetPosition(shot.mouth.centre, shot.mouth.spread);
    attackEmitter->Restart();
    effectTimer = 0.0f;
    if (shot.sound)
        PlayOnce(shot.sound);
}

void EquippedFigure3D::PlayDeathSound() {
    for (const char* path : values.deathSounds)
        if (path)
            PlayOnce(path);
}

void EquippedFigure3D::StartMoveSound() {
    sound->PlaySample(values.moveSound.path, fullVolume, values.moveSound.loops);
}

void EquippedFigure3D::StopMoveSound() {
    sound->FadeOutSample(values.moveSound.path, moveSoundFade);
}

void EquippedFigure3D::PlayOnce(const char* path) const {
    sound->PlaySample(path, fullVolume, 0);
}

}  // namespace tolvane

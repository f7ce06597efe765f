#include "assets/ParticleEffect.h"

#include "assets/Gl.h"
#include "assets/ParticlePreset.h"
#include "assets/TextureHandler.h"

namespace tolvane {

void ParticleEffect::SetPosition(const Vertex& point, const Vertex& spread) {
    position = point;
    positionSpread = spread;
}

void ParticleEffect::SetDirection(const Vertex& velocity, const Vertex& spread) {
    direction = velocity;
    directionSpread = spread;
}

void ParticleEffect::SetSpeed(float min, float max) {
    speedMin = min;
    speedMax = max;
}

void ParticleEffect::SetRotationSpeed(float min, float max) {
    spinMin = min;
    spinMax = max;
}

void ParticleEffect::SetRotationAcceleration(float min, float max) {
    spinAccelerationMin = min;
    spinAccelerationMax = max;
}

void ParticleEffect::SetAcceleration(const Vertex& towards, float min, float max) {
    accelerationDirection = towards;
    accelerationMin = min;
    accelerationMax = max;
}

void ParticleEffect::SetStartColor(const Vertex& min, const Vertex& max) {
    colorStartMin = min;
    colorStartMax = max;
}

void ParticleEffect::SetEndColor(const Vertex& min, const Vertex& max) {
    colorEndMin = min;
    colorEndMax = max;
}

void ParticleEffect::SetAlpha(float startMin, float startMax, float endMin, float endMax) {
    alphaStartMin = startMin;
    alphaStartMax = startMax;
    alphaEndMin = endMin;
    alphaEndMax = endMax;
}

void ParticleEffect::SetSize(float startMin, float startMax, float endMin, float endMax) {
    sizeStartMin = startMin;
    sizeStartMax = startMax;
    sizeEndMin = endMin;
    sizeEndMax = endMax;
}

void ParticleEffect::SetLifetime(float min, float max) {
    lifetimeMin = min;
    lifetimeMax = max;
}

void ParticleEffect::SetEmissionRate(float rate) {
    emissionRate = static_cast<int>(rate);
}

unsigned int ParticleEffect::LoadTexture(const std::string& path) {
    if (!textureHandler)
        return 0;
    return textureHandler->LoadTGATexture(path, GL_LINEAR, GL_LINEAR, GL_CLAMP_TO_EDGE, GL_CLAMP_TO_EDGE,
                                          GL_BLEND);
}

void ParticleEffect::ApplyPreset(const ParticlePreset& preset) {
    Setup(preset.count, LoadTexture(preset.texture));
    respawn = false;
    useQuads = true;
    spawnAtPosition = true;
    SetEmissionRate(preset.emissionRate);
    emissionVariance = preset.emissionVariance;
    SetLifetime(preset.lifetimeMin, preset.lifetimeMax);
    SetStartColor(preset.colorStartMin, preset.colorStartMax);
    SetEndColor(preset.colorEndMin, preset.colorEndMax);
    SetAlpha(preset.alphaStart, preset.alphaStart, preset.alphaEnd, preset.alphaEnd);
    SetPosition(preset.position, preset.positionSpread);
    SetAcceleration(preset.accelerationDirection, preset.accelerationMin, preset.accelerationMax);
    SetSize(preset.sizeStart, preset.sizeStart, preset.sizeEnd, preset.sizeEnd);
    SetSpeed(preset.speedMin, preset.speedMax);
    SetDirection(preset.direction, preset.directionSpread);
    billboardMode = preset.billboardMode;
}

}  // namespace tolvane

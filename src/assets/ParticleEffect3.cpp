#include "assets/ParticleEffect3.h"

#include "assets/ParticlePreset.h"

namespace tolvane {

namespace {

constexpr ParticlePreset preset{
    .texture = "textures/effects/particle3.tga",
    .count = 50,
    .emissionRate = 3.0f,
    .lifetimeMin = 1.0f,
    .lifetimeMax = 1.2f,
    .colorStartMin = {0.5f, 0.0f, 0.0f},
    .colorStartMax = {0.5f, 0.1f, 0.1f},
    .colorEndMin = {0.2f, 0.2f, 0.0f},
    .colorEndMax = {0.8f, 0.8f, 0.0f},
    .alphaStart = 1.0f,
    .alphaEnd = 0.3f,
    .positionSpread = {0.05f, 0.05f, 0.05f},
    .accelerationDirection = {0.0f, 1.0f, 0.0f},
    .accelerationMin = 0.0f,
    .accelerationMax = 0.5f,
    .sizeStart = 3.5f,
    .sizeEnd = 2.0f,
    .speedMin = 0.5f,
    .speedMax = 0.8f,
    .direction = {0.0f, -0.3f, 0.0f},
    .directionSpread = {0.2f, 1.0f, 0.2f},
    .billboardMode = 2,
};

}  // namespace

ParticleEffect3::ParticleEffect3(TextureHandler* handler) : ParticleEffect(handler) {
    ApplyPreset(preset);
}

}  // namespace tolvane

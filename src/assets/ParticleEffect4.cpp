#include "assets/ParticleEffect4.h"

#include "assets/ParticlePreset.h"

namespace tolvane {

namespace {

constexpr ParticlePreset preset{
    .texture = "textures/effects/particle4.tga",
    .count = 100,
    .emissionRate = 5.0f,
    .lifetimeMin = 0.45f,
    .lifetimeMax = 0.5f,
    .colorStartMin = {0.8f, 0.0f, 0.0f},
    .colorStartMax = {0.8f, 0.1f, 0.1f},
    .colorEndMin = {0.2f, 0.2f, 0.0f},
    .colorEndMax = {0.8f, 0.8f, 0.0f},
    .alphaStart = 1.0f,
    .alphaEnd = 0.1f,
    .positionSpread = {0.02f, 0.02f, 0.02f},
    .accelerationDirection = {0.0f, 0.0f, -1.0f},
    .accelerationMin = 0.0f,
    .accelerationMax = 0.5f,
    .sizeStart = 0.3f,
    .sizeEnd = 0.01f,
    .speedMin = 3.0f,
    .speedMax = 3.0f,
    .billboardMode = 1,
};

}  // namespace

ParticleEffect4::ParticleEffect4(TextureHandler* handler) : ParticleEffect(handler) {
    ApplyPreset(preset);
}

}  // namespace tolvane

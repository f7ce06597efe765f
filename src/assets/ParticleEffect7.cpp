#include "assets/ParticleEffect7.h"

#include "assets/ParticlePreset.h"

namespace tolvane {

namespace {

constexpr ParticlePreset preset{
    .texture = "textures/effects/particle7.tga",
    .count = 120,
    .emissionRate = 2.0f,
    .lifetimeMin = 2.5f,
    .lifetimeMax = 3.0f,
    .colorStartMin = {0.0f, 0.0f, 1.0f},
    .colorStartMax = {0.3f, 0.3f, 1.0f},
    .colorEndMin = {0.4f, 0.4f, 1.0f},
    .colorEndMax = {0.0f, 0.0f, 1.0f},
    .alphaStart = 0.8f,
    .alphaEnd = 0.4f,
    .position = {0.0f, 1.8f, -1.5f},
    .positionSpread = {0.1f, 0.1f, 0.1f},
    .sizeStart = 1.0f,
    .sizeEnd = 0.7f,
    .speedMin = 1.3f,
    .speedMax = 1.3f,
    .directionSpread = {0.2f, 0.2f, 0.2f},
    .billboardMode = 1,
};

}  // namespace

ParticleEffect7::ParticleEffect7(TextureHandler* handler) : ParticleEffect(handler) {
    ApplyPreset(preset);
}

}  // namespace tolvane

#include "assets/ParticleEffect6.h"

#include "assets/ParticlePreset.h"

namespace tolvane {

namespace {

constexpr ParticlePreset preset{
    .texture = "textures/effects/particle6.tga",
    .count = 250,
    .emissionRate = 2.0f,
    .emissionVariance = 0.3f,
    .lifetimeMin = 2.2f,
    .lifetimeMax = 2.5f,
    .colorStartMin = {0.0f, 0.0f, 1.0f},
    .colorStartMax = {0.3f, 0.3f, 1.0f},
    .colorEndMin = {0.4f, 0.4f, 1.0f},
    .colorEndMax = {0.0f, 0.0f, 1.0f},
    .alphaStart = 1.0f,
    .alphaEnd = 0.3f,
    .positionSpread = {1.0f, 0.0f, 1.0f},
    .sizeStart = 0.8f,
    .sizeEnd = 0.8f,
    .speedMin = 1.3f,
    .speedMax = 1.3f,
    .direction = {0.0f, 1.0f, 0.0f},
    .directionSpread = {0.2f, 0.0f, 0.2f},
    .billboardMode = 1,
};

}  // namespace

ParticleEffect6::ParticleEffect6(TextureHandler* handler) : ParticleEffect(handler) {
    ApplyPreset(preset);
}

}  // namespace tolvane

#pragma once

#include "assets/Vertex.h"

namespace tolvane {

// Everything that a preset effect fixes. Where a range has one value here, both its ends have it.
struct ParticlePreset {
    const char* texture;
    int count;
    float emissionRate;  // hundreds of particles a second
    float emissionVariance = 0.0f;
    float lifetimeMin;
    float lifetimeMax;
    Vertex colorStartMin;
    Vertex colorStartMax;
    Vertex colorEndMin;
    Vertex colorEndMax;
    float alphaStart;
    float alphaEnd;
    Vertex position{};
    Vertex positionSpread;
    Vertex accelerationDirection{};
    float accelerationMin = 0.0f;
    float accelerationMax = 0.0f;
    float sizeStart;
    float sizeEnd;
    float speedMin;
    float speedMax;
    Vertex direction{};
    Vertex directionSpread{};
    int billboardMode;
};

}  // namespace tolvane

#pragma once

#include "assets/ParticleEffect.h"

namespace tolvane {

// The sparks of shots and hits, retuned by every figure.
class ParticleEffect4 : public ParticleEffect {
public:
    explicit ParticleEffect4(TextureHandler* handler);
};

}  // namespace tolvane

#pragma once

#include "assets/ParticleEffect.h"

namespace tolvane {

// The queen's glow: a blue cloud before her hands.
class ParticleEffect7 : public ParticleEffect {
public:
    explicit ParticleEffect7(TextureHandler* handler);
};

}  // namespace tolvane

#pragma once

#include "assets/ParticleEffect.h"

namespace tolvane {

// The queen's beam: a wide field of rising blue grains.
class ParticleEffect6 : public ParticleEffect {
public:
    explicit ParticleEffect6(TextureHandler* handler);
};

}  // namespace tolvane

#pragma once

#include "assets/ParticleEffect.h"

namespace tolvane {

// The flame at the corners of the board and under the score boards.
class ParticleEffect3 : public ParticleEffect {
public:
    explicit ParticleEffect3(TextureHandler* handler);
};

}  // namespace tolvane

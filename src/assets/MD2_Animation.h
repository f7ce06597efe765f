#pragma once

#include <string>

#include "assets/MD2_AnimationMode.h"

namespace tolvane {

// A clip to play: which frame group of the model, how it ends, and how fast. At speed 1 a clip plays ten
// frames a second.
struct MD2_Animation {
    std::string name;
    MD2_AnimationMode mode = MD2_AnimationMode::Loop;
    float speed = 0.0f;
};

}  // namespace tolvane

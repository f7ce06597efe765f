#pragma once

#include <cstdint>

namespace tolvane {

// How a clip ends.
enum class MD2_AnimationMode : std::int32_t {
    Loop = 0,      // starts again at its first frame
    Once = 1,      // stops with its last mesh
    Sequence = 2,  // hands over to the next clip of the list that is playing
    Freeze = 3,    // shows its first frame and stands still
};

}  // namespace tolvane

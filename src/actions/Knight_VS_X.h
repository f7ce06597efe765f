#pragma once

#include "actions/InterAction.h"

namespace tolvane {

class Knight3D;

// The knight jumps on its victim: it hangs in the air above it, fires straight down, waits for it to fade and
// settles on the field. It faces as it does all the while. The attacker is a Knight3D.
class Knight_VS_X final : public InterAction {
public:
    Knight_VS_X(ChessFigure3D* attacking, ChessFigure3D* attacked, float sizeOfField);

    bool Step(float frameTime, const Vertex* eyePosition) override;

private:
    bool Rise(float frameTime, const Vertex* eyePosition);
    bool Fly(float frameTime, const Vertex* eyePosition);
    bool Prepare(float frameTime, const Vertex* eyePosition);
    bool Strike(float frameTime, const Vertex* eyePosition);
    bool Wait(float frameTime, const Vertex* eyePosition);
    bool Land(float frameTime, const Vertex* eyePosition);
    Knight3D& Knight() const;
};

}  // namespace tolvane

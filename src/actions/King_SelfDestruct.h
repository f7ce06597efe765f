#pragma once

#include "actions/Action.h"

namespace tolvane {

class ChessFigure3D;

// The end of a mated king: he breaks, an alarm sounds, he explodes and fades. The script never reports its
// end, for mate is the end of the game. The king is a King3D.
class King_SelfDestruct final : public Action {
public:
    // The king is not owned. He begins to break at once.
    explicit King_SelfDestruct(ChessFigure3D* mated);

    bool Step(float frameTime, const Vertex* eyePosition) override;

private:
    void WaitForAlarm(float frameTime);
    void WaitForExplosion(float frameTime);
    void Explode(float frameTime, const Vertex* eyePosition);

    ChessFigure3D* king;
    float timer = 0.0f;
};

}  // namespace tolvane

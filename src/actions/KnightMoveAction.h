#pragma once

#include "actions/MoveAction.h"

namespace tolvane {

class Knight3D;

// The knight's jump: up, over, down, facing as it does. The figure is a Knight3D.
class KnightMoveAction final : public MoveAction {
public:
    // The figure is not owned.
    KnightMoveAction(ChessFigure3D* moving, int column, int row, float fieldSize);

    bool Step(float frameTime, const Vertex* eyePosition) override;

private:
    bool Rise(float frameTime, const Vertex* eyePosition);
    bool Fly(float frameTime, const Vertex* eyePosition);
    bool Land(float frameTime, const Vertex* eyePosition);
    Knight3D& Knight() const;

    ChessFigure3D* jumper;
};

}  // namespace tolvane

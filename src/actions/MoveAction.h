#pragma once

#include "actions/Action.h"

namespace tolvane {

class ChessFigure3D;

// A walk to a field: the figure turns, walks and turns back to the heading it had.
class MoveAction : public Action {
public:
    // The figure is not owned. Gives it its target and the heading of the way there.
    MoveAction(ChessFigure3D* moving, int column, int row, float fieldSize);

    bool Step(float frameTime, const Vertex* eyePosition) override;

protected:
    // For a move that is not a walk and sets its figure up by itself.
    MoveAction() = default;

    // What a figure does besides when its walk begins and when it has arrived.
    virtual void Depart() {}
    virtual void Arrive() {}

    ChessFigure3D* figure = nullptr;
    bool firstWalkStep = true;
    float startHeading = 0.0f;
    bool needsTurn = true;

private:
    bool Turn(float frameTime, const Vertex* eyePosition);
    bool Walk(float frameTime, const Vertex* eyePosition);
    bool TurnBack(float frameTime, const Vertex* eyePosition);
};

}  // namespace tolvane

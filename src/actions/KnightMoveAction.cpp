#include "actions/KnightMoveAction.h"

#include <array>

#include "actions/KnightFlight.h"
#include "actions/Storyboard.h"
#include "figures/Knight3D.h"

namespace tolvane {

KnightMoveAction::KnightMoveAction(ChessFigure3D* moving, int column, int row, float fieldSize)
    : jumper(moving) {
    jumper->SetTarget(column, row, fieldSize);
}

Knight3D& KnightMoveAction::Knight() const {
    return *static_cast<Knight3D*>(jumper);
}

bool KnightMoveAction::Step(float frameTime, const Vertex* eyePosition) {
    static constexpr std::array storyboard{&KnightMoveAction::Rise, &KnightMoveAction::Fly,
                                           &KnightMoveAction::Land};
    return PlayPhase(*this, storyboard, state, frameTime, eyePosition);
}

bool KnightMoveAction::Rise(float frameTime, const Vertex*) {
    if (firstWalkStep) {
        TakeOff(Knight());
        firstWalkStep = false;
    }
    return Knight().Rise(frameTime);
}

bool KnightMoveAction::Fly(float frameTime, const Vertex*) {
    return FlyFor(frameTime, Knight());
}

bool KnightMoveAction::Land(float frameTime, const Vertex*) {
    return LandFor(frameTime, Knight());
}

}  // namespace tolvane

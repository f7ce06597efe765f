#include "actions/MoveAction.h"

#include <array>
#include <optional>

#include "actions/Facing.h"
#include "actions/Slices.h"
#include "actions/Storyboard.h"
#include "assets/Numbers.h"

namespace tolvane {

MoveAction::MoveAction(ChessFigure3D* moving, int column, int row, float fieldSize) : figure(moving) {
    figure->SetTarget(column, row, fieldSize);
    startHeading = figure->GetRotationY();
    const std::optional<int> turn =
        TurnTowards(figure->GetPlayer(), Sign(column - ColumnOf(*figure)), Sign(row - RowOf(*figure)));
    needsTurn = turn.has_value();
    figure->SetTargetHeading(startHeading + static_cast<float>(turn.value_or(0)));
}

bool MoveAction::Step(float frameTime, const Vertex* eyePosition) {
    static constexpr std::array storyboard{&MoveAction::Turn, &MoveAction::Walk, &MoveAction::TurnBack};
    return PlayPhase(*this, storyboard, state, frameTime, eyePosition);
}

bool MoveAction::Turn(float frameTime, const Vertex*) {
    return !needsTurn || TurnFor(frameTime, *figure);
}

bool MoveAction::Walk(float frameTime, const Vertex*) {
    if (firstWalkStep) {
        figure->PlayAnimationList(&figure->runList);
        firstWalkStep = false;
        Depart();
    }
    if (!figure->Walk(frameTime))
        return false;
    Arrive();
    figure->SetTargetHeading(startHeading);
    return true;
}

bool MoveAction::TurnBack(float frameTime, const Vertex*) {
    return !needsTurn || TurnFor(frameTime, *figure);
}

}  // namespace tolvane

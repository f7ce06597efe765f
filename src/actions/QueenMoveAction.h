#pragma once

#include "actions/MoveAction.h"

namespace tolvane {

class Queen3D;

// The queen's flight over the board: a walk that trails her jet. The figure is a Queen3D.
class QueenMoveAction final : public MoveAction {
public:
    using MoveAction::MoveAction;

private:
    void Depart() override;
    void Arrive() override;
    Queen3D& Queen() const;
};

}  // namespace tolvane

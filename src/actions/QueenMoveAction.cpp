#include "actions/QueenMoveAction.h"

#include "assets/ParticleEffect3.h"
#include "figures/Queen3D.h"

namespace tolvane {

Queen3D& QueenMoveAction::Queen() const {
    return *static_cast<Queen3D*>(figure);
}

void QueenMoveAction::Depart() {
    Queen().engineActive = true;
}

void QueenMoveAction::Arrive() {
    Queen().engineActive = false;
    Queen().engineEmitter->Restart();
}

}  // namespace tolvane

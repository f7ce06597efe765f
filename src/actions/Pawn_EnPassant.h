#pragma once

#include "actions/InterAction.h"

namespace tolvane {

// A pawn kills the pawn beside it and then steps diagonally behind it.
class Pawn_EnPassant final : public InterAction {
public:
    Pawn_EnPassant(ChessFigure3D* attacking, ChessFigure3D* attacked, float sizeOfField);

    bool Step(float frameTime, const Vertex* eyePosition) override;

private:
    bool TurnEachOther(float frameTime, const Vertex* eyePosition);
    bool FightRound(float frameTime, const Vertex* eyePosition);
    bool Die(float frameTime, const Vertex* eyePosition);
    bool TurnToDiagonal(float frameTime, const Vertex* eyePosition);
    bool StepBehind(float frameTime, const Vertex* eyePosition);
    bool TurnBack(float frameTime, const Vertex* eyePosition);

    int angle;  // degrees from the heading at rest to the pawn beside
};

}  // namespace tolvane

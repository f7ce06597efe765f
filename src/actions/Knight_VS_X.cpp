#include "actions/Knight_VS_X.h"

#include <array>

#include "actions/Facing.h"
#include "actions/KnightFlight.h"
#include "actions/Storyboard.h"
#include "figures/Knight3D.h"

namespace tolvane {

namespace {

constexpr FightValues oneShot{.secondShot = false};

}  // namespace

Knight_VS_X::Knight_VS_X(ChessFigure3D* attacking, ChessFigure3D* attacked, float sizeOfField)
    : InterAction(attacking, attacked, sizeOfField) {
    needsApproach = true;
    attacker->SetTarget(ColumnOf(*victim), RowOf(*victim), fieldSize);
}

Knight3D& Knight_VS_X::Knight() const {
    return *static_cast<Knight3D*>(attacker);
}

bool Knight_VS_X::Step(float frameTime, const Vertex* eyePosition) {
    static constexpr std::array storyboard{&Knight_VS_X::Rise,   &Knight_VS_X::Fly,  &Knight_VS_X::Prepare,
                                           &Knight_VS_X::Strike, &Knight_VS_X::Wait, &Knight_VS_X::Land};
    return PlayPhase(*this, storyboard, state, frameTime, eyePosition);
}

bool Knight_VS_X::Rise(float frameTime, const Vertex*) {
    if (firstWalkStep) {
        TakeOff(Knight());
        firstWalkStep = false;
    }
    return Knight().Rise(frameTime);
}

bool Knight_VS_X::Fly(float frameTime, const Vertex*) {
    return FlyFor(frameTime, Knight());
}

bool Knight_VS_X::Prepare(float, const Vertex*) {
    StartRound(oneShot);
    return true;
}

bool Knight_VS_X::Strike(float frameTime, const Vertex* eyePosition) {
    return Fight(frameTime, eyePosition, oneShot);
}

bool Knight_VS_X::Wait(float frameTime, const Vertex* eyePosition) {
    return victim->FadeOut(frameTime, eyePosition);
}

bool Knight_VS_X::Land(float frameTime, const Vertex*) {
    return LandFor(frameTime, Knight());
}

}  // namespace tolvane

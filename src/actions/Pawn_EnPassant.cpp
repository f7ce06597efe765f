#include "actions/Pawn_EnPassant.h"

#include <array>

#include "actions/Facing.h"
#include "actions/Slices.h"
#include "actions/Storyboard.h"

namespace tolvane {

namespace {

constexpr FightValues pawnFight;

}  // namespace

Pawn_EnPassant::Pawn_EnPassant(ChessFigure3D* attacking, ChessFigure3D* attacked, float sizeOfField)
    : InterAction(attacking, attacked, sizeOfField), angle(FaceVictim()) {
    victim->SetTargetHeading(static_cast<float>(angle) + victimHeading);
}

bool Pawn_EnPassant::Step(float frameTime, const Vertex* eyePosition) {
    static constexpr std::array storyboard{&Pawn_EnPassant::TurnEachOther, &Pawn_EnPassant::FightRound,
                                           &Pawn_EnPassant::Die,           &Pawn_EnPassant::TurnToDiagonal,
                                           &Pawn_EnPassant::StepBehind,    &Pawn_EnPassant::TurnBack};
    return PlayPhase(*this, storyboard, state, frameTime, eyePosition);
}

bool Pawn_EnPassant::TurnEachOther(float frameTime, const Vertex*) {
    if (!TurnBoth(frameTime, attackerTurned, victimTurned))
        return false;
    StartRound(pawnFight);
    return true;
}

bool Pawn_EnPassant::FightRound(float frameTime, const Vertex* eyePosition) {
    return Fight(frameTime, eyePosition, pawnFight);
}

bool Pawn_EnPassant::Die(float frameTime, const Vertex* eyePosition) {
    if (!victim->FadeOut(frameTime, eyePosition))
        return false;
    attacker->SetTargetHeading(attackerHeading + static_cast<float>(angle / 2));
    return true;
}

bool Pawn_EnPassant::TurnToDiagonal(float frameTime, const Vertex*) {
    if (!TurnFor(frameTime, *attacker))
        return false;
    const int forward = attacker->GetPlayer() == Player::White ? 1 : -1;
    attacker->SetTarget(ColumnOf(*victim), RowOf(*victim) + forward, fieldSize);
    attacker->PlayAnimationList(&attacker->runList);
    return true;
}

bool Pawn_EnPassant::StepBehind(float frameTime, const Vertex*) {
    if (!attacker->Walk(frameTime))
        return false;
    attacker->SetTargetHeading(attackerHeading);
    return true;
}

bool Pawn_EnPassant::TurnBack(float frameTime, const Vertex*) {
    return TurnFor(frameTime, *attacker);
}

}  // namespace tolvane

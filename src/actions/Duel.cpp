#include "actions/Duel.h"

#include <array>
#include <cstdlib>

#include "actions/Facing.h"
#include "actions/Slices.h"
#include "actions/Storyboard.h"

namespace tolvane {

Duel::Duel(const DuelValues& duel, ChessFigure3D* attacking, ChessFigure3D* attacked, float sizeOfField)
    : InterAction(attacking, attacked, sizeOfField), values(&duel) {
    rounds = values->rounds;
    // The two sides stand 180 degrees apart, so the same angle makes the victim face its attacker.
    victim->SetTargetHeading(static_cast<float>(FaceVictim()) + victimHeading);
    needsApproach = std::abs(ColumnOf(*victim) - ColumnOf(*attacker)) > 1 ||
                    std::abs(RowOf(*victim) - RowOf(*attacker)) > 1;
    if (needsApproach)
        attacker->SetTarget(ColumnOf(*victim) - ColumnSign(), RowOf(*victim) - RowSign(), fieldSize);
}

bool Duel::Step(float frameTime, const Vertex* eyePosition) {
    static constexpr std::array amongNeighbours{&Duel::TurnEachOther, &Duel::FightRounds, &Duel::Die,
                                                &Duel::Advance, &Duel::TurnBack};
    static constexpr std::array fromAfar{&Duel::TurnAttacker, &Duel::Approach, &Duel::TurnVictim,
                                         &Duel::FightRounds,  &Duel::Die,      &Duel::Advance,
                                         &Duel::TurnBack};
    if (values->reach == DuelReach::neighbours)
        return PlayPhase(*this, amongNeighbours, state, frameTime, eyePosition);
    return PlayPhase(*this, fromAfar, state, frameTime, eyePosition);
}

bool Duel::TurnEachOther(float frameTime, const Vertex*) {
    if (!TurnBoth(frameTime, attackerTurned, victimTurned))
        return false;
    StartRound(values->fight);
    return true;
}

bool Duel::TurnAttacker(float frameTime, const Vertex*) {
    return !needsTurn || TurnFor(frameTime, *attacker);
}

bool Duel::Approach(float frameTime, const Vertex*) {
    if (!needsApproach)
        return true;
    if (firstWalkStep) {
        attacker->PlayAnimationList(&attacker->runList);
        firstWalkStep = false;
    }
    return attacker->Walk(frameTime);
}

bool Duel::TurnVictim(float frameTime, const Vertex*) {
    if (needsTurn && !TurnFor(frameTime, *victim))
        return false;
    StartRound(values->fight);
    return true;
}

bool Duel::FightRounds(float frameTime, const Vertex* eyePosition) {
    return Fight(frameTime, eyePosition, values->fight);
}

bool Duel::Die(float frameTime, const Vertex* eyePosition) {
    if (!victim->FadeOut(frameTime, eyePosition))
        return false;
    attacker->SetTarget(ColumnOf(*victim), RowOf(*victim), fieldSize);
    attacker->PlayAnimationList(&attacker->runList);
    return true;
}

bool Duel::Advance(float frameTime, const Vertex*) {
    if (!attacker->Walk(frameTime))
        return false;
    attacker->SetTargetHeading(attackerHeading);
    return true;
}

bool Duel::TurnBack(float frameTime, const Vertex*) {
    return !needsTurn || TurnFor(frameTime, *attacker);
}

}  // namespace tolvane

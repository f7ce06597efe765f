#include "actions/InterAction.h"

#include "actions/Facing.h"
#include "actions/Slices.h"
#include "assets/Numbers.h"

namespace tolvane {

InterAction::InterAction(ChessFigure3D* attacking, ChessFigure3D* attacked, float sizeOfField)
    : attacker(attacking),
      victim(attacked),
      attackerHeading(attacking->GetRotationY()),
      victimHeading(attacked->GetRotationY()),
      fieldSize(sizeOfField) {}

bool InterAction::Step(float, const Vertex*) {
    return true;
}

int InterAction::ColumnSign() const {
    return Sign(ColumnOf(*victim) - ColumnOf(*attacker));
}

int InterAction::RowSign() const {
    return Sign(RowOf(*victim) - RowOf(*attacker));
}

int InterAction::FaceVictim() {
    const std::optional<int> turn = TurnTowards(attacker->GetPlayer(), ColumnSign(), RowSign());
    needsTurn = turn.has_value();
    const int angle = turn.value_or(0);
    attacker->SetTargetHeading(static_cast<float>(angle) + attackerHeading);
    return angle;
}

bool InterAction::TurnBoth(float frameTime, bool& attackerDone, bool& victimDone) {
    if (!attackerDone)
        attackerDone = TurnFor(frameTime, *attacker);
    if (!victimDone)
        victimDone = TurnFor(frameTime, *victim);
    return attackerDone && victimDone;
}

void InterAction::StartRound(const FightValues& values) {
    attacker->SetAnimation(attacker->attackAnimations[0]);
    attacker->attackActive = true;
    attacker->firstShotPending = true;
    attacker->secondShotPending = values.secondShot;
    victim->SetAnimation(victim->damageAnimation);
    (values.heavyFirstHit && round == 1 ? victim->heavyDamageActive : victim->damageActive) = true;
    timer = 0.0f;
}

bool InterAction::Fight(float frameTime, const Vertex* eyePosition, const FightValues& values) {
    const bool attackOver = attacker->RunAttack(frameTime, eyePosition);
    const bool hitsOver = victim->RunDamage(frameTime, eyePosition);
    timer += frameTime;
    if (values.secondHitDelay && secondHitPending && timer > *values.secondHitDelay) {
        victim->damageActive = true;
        victim->effectTimer = 0.0f;
        secondHitPending = false;
    }
    if (!attackOver || !hitsOver || !attacker->IsAnimationFinished() || !victim->IsAnimationFinished())
        return false;

    if (round >= rounds) {
        victim->PlayAnimationList(&victim->deathList);
        victim->PlayDeathSound();
        return true;
    }
    ++round;
    StartRound(values);
    secondHitPending = true;
    return false;
}

}  // namespace tolvane

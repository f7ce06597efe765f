#include "actions/CastlingAction.h"

#include <array>
#include <cstdlib>

#include "actions/Facing.h"
#include "actions/Slices.h"
#include "actions/Storyboard.h"
#include "assets/Numbers.h"

namespace tolvane {

namespace {

constexpr int shortDistance = 3;  // on the king's side; four on the queen's
constexpr int belowBoard = -1;
constexpr int aboveBoard = 8;

}  // namespace

CastlingAction::CastlingAction(ChessFigure3D* king, ChessFigure3D* rook, float sizeOfField)
    : InterAction(king, rook, sizeOfField),
      angle(FaceVictim()),
      columnDistance(ColumnOf(*rook) - ColumnOf(*king)),
      side(Sign(columnDistance)) {
    victim->SetTargetHeading(victimHeading - static_cast<float>(angle));
    SetTargetAlongRow(*attacker, side);
    SetTargetAlongRow(*victim, -side);
}

bool CastlingAction::Step(float frameTime, const Vertex* eyePosition) {
    static constexpr std::array storyboard{
        &CastlingAction::FaceEachOther,     &CastlingAction::TakeFirstSteps,
        &CastlingAction::TurnRookToEdge,    &CastlingAction::RookLeavesBoard,
        &CastlingAction::TurnRookAlongEdge, &CastlingAction::TakeSecondSteps,
        &CastlingAction::FaceForward,       &CastlingAction::RookComesBack};
    return PlayPhase(*this, storyboard, state, frameTime, eyePosition);
}

bool CastlingAction::FaceEachOther(float frameTime, const Vertex*) {
    if (!TurnBoth(frameTime, kingDone, rookDone))
        return false;
    ClearDone();
    attacker->PlayAnimationList(&attacker->runList);
    victim->PlayAnimationList(&victim->runList);
    return true;
}

bool CastlingAction::TakeFirstSteps(float frameTime, const Vertex*) {
    if (!WalkBoth(frameTime))
        return false;
    victim->SetTargetHeading(victimHeading - static_cast<float>(2 * angle));
    return true;
}

bool CastlingAction::TurnRookToEdge(float frameTime, const Vertex*) {
    if (!TurnFor(frameTime, *victim))
        return false;
    victim->PlayAnimationList(&victim->runList);
    victim->SetTarget(ColumnOf(*victim), RowOf(*victim) == 0 ? belowBoard : aboveBoard, fieldSize);
    return true;
}

bool CastlingAction::RookLeavesBoard(float frameTime, const Vertex*) {
    if (!victim->Walk(frameTime))
        return false;
    victim->SetTargetHeading(victimHeading - static_cast<float>(angle));
    return true;
}

bool CastlingAction::TurnRookAlongEdge(float frameTime, const Vertex*) {
    if (!TurnFor(frameTime, *victim))
        return false;
    SetTargetAlongRow(*attacker, side);
    SetTargetAlongRow(*victim, std::abs(columnDistance) == shortDistance ? -side : -2 * side);
    attacker->PlayAnimationList(&attacker->runList);
    victim->PlayAnimationList(&victim->runList);
    ClearDone();
    return true;
}

bool CastlingAction::TakeSecondSteps(float frameTime, const Vertex*) {
    if (!WalkBoth(frameTime))
        return false;
    ClearDone();
    attacker->SetTargetHeading(victimHeading);
    victim->SetTargetHeading(victimHeading);
    return true;
}

bool CastlingAction::FaceForward(float frameTime, const Vertex*) {
    if (!TurnBoth(frameTime, kingDone, rookDone))
        return false;
    victim->PlayAnimationList(&victim->runList);
    victim->SetTarget(ColumnOf(*victim), RowOf(*attacker), fieldSize);
    return true;
}

bool CastlingAction::RookComesBack(float frameTime, const Vertex*) {
    return victim->Walk(frameTime);
}

bool CastlingAction::WalkBoth(float frameTime) {
    if (!kingDone)
        kingDone = attacker->Walk(frameTime);
    if (!rookDone)
        rookDone = victim->Walk(frameTime);
    return kingDone && rookDone;
}

void CastlingAction::ClearDone() {
    kingDone = false;
    rookDone = false;
}

void CastlingAction::SetTargetAlongRow(ChessFigure3D& figure, int columns) const {
    figure.SetTarget(ColumnOf(figure) + columns, RowOf(figure), fieldSize);
}

}  // namespace tolvane

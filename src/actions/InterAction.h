#pragma once

#include <optional>

#include "actions/Action.h"

namespace tolvane {

class ChessFigure3D;

// What a round of a fight is made of.
struct FightValues {
    bool secondShot = true;                       // the attacker may shoot twice
    bool heavyFirstHit = false;                   // the first round's hit is the big one
    std::optional<float> secondHitDelay = 0.25f;  // seconds into a round; none: the victim is hit once
};

// A scene between two figures, held by the one that moves. Neither is owned.
class InterAction : public Action {
public:
    // Reads both headings. fieldSize is the width of a field in world units.
    InterAction(ChessFigure3D* attacking, ChessFigure3D* attacked, float sizeOfField);

    // Over at once: a meeting in which nothing happens.
    bool Step(float frameTime, const Vertex* eyePosition) override;

protected:
    // What most meetings are made of, a frame each; true when it is over

    bool TurnBoth(float frameTime, bool& attackerDone, bool& victimDone);
    // All rounds; the victim begins to die at the end.
    bool Fight(float frameTime, const Vertex* eyePosition, const FightValues& values);

    // Works out which way the victim is, tells the attacker to look there, and answers the angle in degrees.
    // The victim keeps its own mind.
    int FaceVictim();
    void StartRound(const FightValues& values);
    // The way to the victim's field from the attacker's, -1, 0 or 1 each.
    int ColumnSign() const;
    int RowSign() const;

    ChessFigure3D* attacker;
    ChessFigure3D* victim;
    float attackerHeading;  // before the scene
    float victimHeading;
    bool needsTurn = true;
    bool firstWalkStep = true;
    bool needsApproach = false;
    int rounds = 1;
    int round = 1;
    float timer = 0.0f;
    bool secondHitPending = true;
    float fieldSize;
    bool attackerTurned = false;
    bool victimTurned = false;
};

}  // namespace tolvane

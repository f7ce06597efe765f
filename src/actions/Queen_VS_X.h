#pragma once

#include "actions/InterAction.h"

namespace tolvane {

class Queen3D;

// The showpiece: the queen gathers a charge, a beam rises round the victim, who dissolves into a drinks can;
// a saucer comes in from afar, hauls the can up in its beam and leaves; then she flies to the empty field.
// The attacker is a Queen3D.
class Queen_VS_X final : public InterAction {
public:
    // Turns the queen to her victim, who stays as it is, and takes a can at random.
    Queen_VS_X(ChessFigure3D* attacking, ChessFigure3D* attacked, float sizeOfField);

    bool Step(float frameTime, const Vertex* eyePosition) override;

private:
    // The storyboard
    bool Turn(float frameTime, const Vertex* eyePosition);
    bool Charge(float frameTime, const Vertex* eyePosition);
    bool Glow(float frameTime, const Vertex* eyePosition);
    bool Beam(float frameTime, const Vertex* eyePosition);
    bool Dissolve(float frameTime, const Vertex* eyePosition);
    bool DropCan(float frameTime, const Vertex* eyePosition);
    bool UfoAppears(float frameTime, const Vertex* eyePosition);
    bool UfoComesIn(float frameTime, const Vertex* eyePosition);
    bool UfoSinks(float frameTime, const Vertex* eyePosition);
    bool PickUp(float frameTime, const Vertex* eyePosition);
    bool Pause(float frameTime, const Vertex* eyePosition);
    bool UfoLeaves(float frameTime, const Vertex* eyePosition);
    bool Fly(float frameTime, const Vertex* eyePosition);
    bool TurnBack(float frameTime, const Vertex* eyePosition);

    // Parts of it
    void FadeCanIn(float frameTime);
    void SendUfo(float frameTime);
    // The saucer slows down a little and moves level towards the victim.
    void MoveUfoIn(float frameTime);
    bool ComeIn(float slice);
    const Vertex& VictimPlace() const;
    Queen3D& Queen() const;

    bool canShown = false;  // the can has fully appeared
    bool victimGone = false;
    float* ufoColor = nullptr;  // of the saucer's material; four floats, alpha last
    float ufoSpeed = 5.0f;      // world units a second
    float ufoStep = 0.0f;       // way of the latest step
    int ufoDirectionX = 0;      // from the victim to where the saucer comes from, -1, 0 or 1
    int ufoDirectionZ = 0;
};

}  // namespace tolvane

#pragma once

#include "actions/InterAction.h"

namespace tolvane {

// King and rook step towards each other; then the rook leaves the board, walks round behind the king, who
// takes his second step, and comes back on his far side. The king is the attacker, the rook the victim: the
// king holds the script and the rook is stepped with it.
class CastlingAction final : public InterAction {
public:
    CastlingAction(ChessFigure3D* king, ChessFigure3D* rook, float sizeOfField);

    bool Step(float frameTime, const Vertex* eyePosition) override;

private:
    bool FaceEachOther(float frameTime, const Vertex* eyePosition);
    bool TakeFirstSteps(float frameTime, const Vertex* eyePosition);
    bool TurnRookToEdge(float frameTime, const Vertex* eyePosition);
    bool RookLeavesBoard(float frameTime, const Vertex* eyePosition);
    bool TurnRookAlongEdge(float frameTime, const Vertex* eyePosition);
    bool TakeSecondSteps(float frameTime, const Vertex* eyePosition);
    bool FaceForward(float frameTime, const Vertex* eyePosition);
    bool RookComesBack(float frameTime, const Vertex* eyePosition);

    bool WalkBoth(float frameTime);
    void ClearDone();
    // A target some columns away on the same row.
    void SetTargetAlongRow(ChessFigure3D& figure, int columns) const;

    bool kingDone = false;
    bool rookDone = false;
    int angle;           // degrees from the king's heading at rest to the rook
    int columnDistance;  // from king to rook
    int side;            // its sign
};

}  // namespace tolvane

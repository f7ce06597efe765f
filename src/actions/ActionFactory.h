#pragma once

namespace tolvane {

class Action;
class ChessFigure3D;

// Chooses the script of a move or a fight and makes it with new, for ChessFigure3D::SetAction to take over.
// Making a script already changes the figures: target, heading, for some scenes the running clips. fieldSize
// is the width of a field in world units.
class ActionFactory {
public:
    // A walk, a jump or a flight to a free field. Null for a type that is none of the six.
    Action* CreateMoveAction(ChessFigure3D* figure, int column, int row, float fieldSize) const;

    // A fight. The attacker's type leads to one of the six below; the victim's type chooses the script. Null
    // for a king as victim, for the rules never take one.
    Action* CreateAttackAction(ChessFigure3D* attacker, ChessFigure3D* victim, float fieldSize) const;
    // Two pawns on one row meet en passant.
    Action* CreatePawnAttack(ChessFigure3D* attacker, ChessFigure3D* victim, float fieldSize) const;
    Action* CreateRookAttack(ChessFigure3D* attacker, ChessFigure3D* victim, float fieldSize) const;
    Action* CreateKnightAttack(ChessFigure3D* attacker, ChessFigure3D* victim, float fieldSize) const;
    Action* CreateBishopAttack(ChessFigure3D* attacker, ChessFigure3D* victim, float fieldSize) const;
    Action* CreateQueenAttack(ChessFigure3D* attacker, ChessFigure3D* victim, float fieldSize) const;
    Action* CreateKingAttack(ChessFigure3D* attacker, ChessFigure3D* victim, float fieldSize) const;

    // The king holds the script and steps the rook with it.
    Action* CreateCastlingAction(ChessFigure3D* king, ChessFigure3D* rook, float fieldSize) const;
    // The end of a mated king. It never reports its own end.
    Action* CreateSelfDestructAction(ChessFigure3D* king) const;
};

}  // namespace tolvane

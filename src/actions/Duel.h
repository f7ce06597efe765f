#pragma once

#include "actions/DuelValues.h"
#include "actions/InterAction.h"

namespace tolvane {

// A fight by shots or blows: the attacker faces its victim, walks up to it if it stands away, fights a number
// of rounds, and when the victim has died and faded it takes the field and turns back to its old heading.
class Duel : public InterAction {
public:
    bool Step(float frameTime, const Vertex* eyePosition) override;

protected:
    // Turns both towards each other and gives an attacker from afar the field before its victim as a target.
    // The row of the table outlives the fight.
    Duel(const DuelValues& duel, ChessFigure3D* attacking, ChessFigure3D* attacked, float sizeOfField);

private:
    bool TurnEachOther(float frameTime, const Vertex* eyePosition);
    bool TurnAttacker(float frameTime, const Vertex* eyePosition);
    bool Approach(float frameTime, const Vertex* eyePosition);
    bool TurnVictim(float frameTime, const Vertex* eyePosition);
    bool FightRounds(float frameTime, const Vertex* eyePosition);
    bool Die(float frameTime, const Vertex* eyePosition);
    bool Advance(float frameTime, const Vertex* eyePosition);
    bool TurnBack(float frameTime, const Vertex* eyePosition);

    const DuelValues* values;
};

// The class of each fight of the table.
template <DuelKind kind>
class DuelOf final : public Duel {
public:
    DuelOf(ChessFigure3D* attacking, ChessFigure3D* attacked, float sizeOfField)
        : Duel(ValuesOf(kind), attacking, attacked, sizeOfField) {}
};

using Pawn_VS_Pawn = DuelOf<DuelKind::Pawn_VS_Pawn>;
using Pawn_VS_Rook = DuelOf<DuelKind::Pawn_VS_Rook>;
using Pawn_VS_Knight = DuelOf<DuelKind::Pawn_VS_Knight>;
using Pawn_VS_Bishop = DuelOf<DuelKind::Pawn_VS_Bishop>;
using Pawn_VS_Queen = DuelOf<DuelKind::Pawn_VS_Queen>;
using King_VS_Pawn = DuelOf<DuelKind::King_VS_Pawn>;
using King_VS_Rook = DuelOf<DuelKind::King_VS_Rook>;
using King_VS_Knight = DuelOf<DuelKind::King_VS_Knight>;
using King_VS_Bishop = DuelOf<DuelKind::King_VS_Bishop>;
using King_VS_Queen = DuelOf<DuelKind::King_VS_Queen>;
using Rook_VS_Rook = DuelOf<DuelKind::Rook_VS_Rook>;
using Rook_VS_X = DuelOf<DuelKind::Rook_VS_X>;
using Bishop_VS_Pawn = DuelOf<DuelKind::Bishop_VS_Pawn>;
using Bishop_VS_Rook = DuelOf<DuelKind::Bishop_VS_Rook>;
using Bishop_VS_Knight = DuelOf<DuelKind::Bishop_VS_Knight>;
using Bishop_VS_Bishop = DuelOf<DuelKind::Bishop_VS_Bishop>;
using Bishop_VS_Queen = DuelOf<DuelKind::Bishop_VS_Queen>;

}  // namespace tolvane

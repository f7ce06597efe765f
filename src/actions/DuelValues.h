#pragma once

#include <array>
#include <cstddef>

#include "actions/InterAction.h"

namespace tolvane {

// The fights that follow one design, by attacker and victim.
enum class DuelKind {
    Pawn_VS_Pawn,
    Pawn_VS_Rook,
    Pawn_VS_Knight,
    Pawn_VS_Bishop,
    Pawn_VS_Queen,
    King_VS_Pawn,
    King_VS_Rook,
    King_VS_Knight,
    King_VS_Bishop,
    King_VS_Queen,
    Rook_VS_Rook,
    Rook_VS_X,
    Bishop_VS_Pawn,
    Bishop_VS_Rook,
    Bishop_VS_Knight,
    Bishop_VS_Bishop,
    Bishop_VS_Queen,
};

// Where the fight begins: between neighbours, or after a walk up to the victim.
enum class DuelReach { neighbours, fromAfar };

struct DuelValues {
    DuelKind kind;
    int rounds;
    DuelReach reach;
    FightValues fight = {};
};

inline constexpr FightValues slowBlow{.secondHitDelay = 0.6f};
inline constexpr FightValues cannonShot{
    .secondShot = false, .heavyFirstHit = true, .secondHitDelay = std::nullopt};

inline constexpr std::array duelValues{
    DuelValues{DuelKind::Pawn_VS_Pawn, 2, DuelReach::neighbours},
    DuelValues{DuelKind::Pawn_VS_Rook, 4, DuelReach::neighbours},
    DuelValues{DuelKind::Pawn_VS_Knight, 3, DuelReach::neighbours},
    DuelValues{DuelKind::Pawn_VS_Bishop, 3, DuelReach::neighbours},
    DuelValues{DuelKind::Pawn_VS_Queen, 3, DuelReach::neighbours},
    DuelValues{DuelKind::King_VS_Pawn, 1, DuelReach::neighbours, slowBlow},
    DuelValues{DuelKind::King_VS_Rook, 3, DuelReach::neighbours},
    DuelValues{DuelKind::King_VS_Knight, 2, DuelReach::neighbours},
    DuelValues{DuelKind::King_VS_Bishop, 2, DuelReach::neighbours},
    DuelValues{DuelKind::King_VS_Queen, 2, DuelReach::neighbours},
    DuelValues{DuelKind::Rook_VS_Rook, 2, DuelReach::fromAfar, cannonShot},
    DuelValues{DuelKind::Rook_VS_X, 1, DuelReach::fromAfar, cannonShot},
    DuelValues{DuelKind::Bishop_VS_Pawn, 1, DuelReach::fromAfar},
    DuelValues{DuelKind::Bishop_VS_Rook, 4, DuelReach::fromAfar},
    DuelValues{DuelKind::Bishop_VS_Knight, 2, DuelReach::fromAfar},
    DuelValues{DuelKind::Bishop_VS_Bishop, 2, DuelReach::fromAfar},
    DuelValues{DuelKind::Bishop_VS_Queen, 2, DuelReach::fromAfar},
};
static_assert(duelValues.size() == 17);

constexpr const DuelValues& ValuesOf(DuelKind kind) {
    return duelValues[static_cast<std::size_t>(kind)];
}

constexpr bool EveryDuelStandsInItsRow() {
    for (std::size_t i = 0; i < duelValues.size(); ++i)
        if (duelValues[i].kind != static_cast<DuelKind>(i))
            return false;
    return true;
}
static_assert(EveryDuelStandsInItsRow());

}  // namespace tolvane

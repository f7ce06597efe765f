#include "actions/ActionFactory.h"

#include <array>
#include <cstddef>
#include <type_traits>

#include "actions/CastlingAction.h"
#include "actions/Duel.h"
#include "actions/King_SelfDestruct.h"
#include "actions/KnightMoveAction.h"
#include "actions/Knight_VS_X.h"
#include "actions/MoveAction.h"
#include "actions/Pawn_EnPassant.h"
#include "actions/QueenMoveAction.h"
#include "actions/Queen_VS_X.h"
#include "figures/ChessFigure3D.h"

namespace tolvane {

namespace {

// A figure releases its script as nothing but memory.
template <typename Script, typename... Arguments>
Action* Make(Arguments... arguments) {
    static_assert(std::is_trivially_destructible_v<Script>);
    return new Script(arguments...);
}

using FightMaker = Action* (*)(ChessFigure3D* attacker, ChessFigure3D* victim, float fieldSize);

template <typename Script>
constexpr FightMaker fight = &Make<Script, ChessFigure3D*, ChessFigure3D*, float>;

// By the victim: pawn, rook, knight, bishop, queen. Nobody fights a king.
using FightTable = std::array<FightMaker, 5>;

constexpr FightTable pawnFights{fight<Pawn_VS_Pawn>, fight<Pawn_VS_Rook>, fight<Pawn_VS_Knight>,
                                fight<Pawn_VS_Bishop>, fight<Pawn_VS_Queen>};
constexpr FightTable rookFights{fight<Rook_VS_X>, fight<Rook_VS_Rook>, fight<Rook_VS_X>, fight<Rook_VS_X>,
                                fight<Rook_VS_X>};
constexpr FightTable knightFights{fight<Knight_VS_X>, fight<Knight_VS_X>, fight<Knight_VS_X>,
                                  fight<Knight_VS_X>, fight<Knight_VS_X>};
constexpr FightTable bishopFights{fight<Bishop_VS_Pawn>, fight<Bishop_VS_Rook>, fight<Bishop_VS_Knight>,
                                  fight<Bishop_VS_Bishop>, fight<Bishop_VS_Queen>};
constexpr FightTable queenFights{fight<Queen_VS_X>, fight<Queen_VS_X>, fight<Queen_VS_X>, fight<Queen_VS_X>,
                                 fight<Queen_VS_X>};
constexpr FightTable kingFights{fight<King_VS_Pawn>, fight<King_VS_Rook>, fight<King_VS_Knight>,
                                fight<King_VS_Bishop>, fight<King_VS_Queen>};

Action* MakeFight(const FightTable& fights, ChessFigure3D* attacker, ChessFigure3D* victim, float fieldSize) {
    const auto kind = static_cast<std::size_t>(victim->GetFigureType());
    return kind < fights.size() ? fights[kind](attacker, victim, fieldSize) : nullptr;
}

}  // namespace

Action* ActionFactory::CreateMoveAction(ChessFigure3D* figure, int column, int row, float fieldSize) const {
    switch (figure->GetFigureType()) {
        case FigureType::Pawn:
        case FigureType::Rook:
        case FigureType::Bishop:
        case FigureType::King: return Make<MoveAction>(figure, column, row, fieldSize);
        case FigureType::Knight: return Make<KnightMoveAction>(figure, column, row, fieldSize);
        case FigureType::Queen: return Make<QueenMoveAction>(figure, column, row, fieldSize);
    }
    return nullptr;
}

Action* ActionFactory::CreateAttackAction(ChessFigure3D* attacker, ChessFigure3D* victim,
                                          float fieldSize) const {
    switch (attacker->GetFigureType()) {
        case FigureType::Pawn: return CreatePawnAttack(attacker, victim, fieldSize);
        case FigureType::Rook: return CreateRookAttack(attacker, victim, fieldSize);
        case FigureType::Knight: return CreateKnightAttack(attacker, victim, fieldSize);
        case FigureType::Bishop: return CreateBishopAttack(attacker, victim, fieldSize);
        case FigureType::Queen: return CreateQueenAttack(attacker, victim, fieldSize);
        case FigureType::King: return CreateKingAttack(attacker, victim, fieldSize);
    }
    return nullptr;
}

Action* ActionFactory::CreatePawnAttack(ChessFigure3D* attacker, ChessFigure3D* victim,
                                        float fieldSize) const {
    if (victim->GetFigureType() == FigureType::Pawn && attacker->GetRow() == victim->GetRow())
        return Make<Pawn_EnPassant>(attacker, victim, fieldSize);
    return MakeFight(pawnFights, attacker, victim, fieldSize);
}

Action* ActionFactory::CreateRookAttack(ChessFigure3D* attacker, ChessFigure3D* victim,
                                        float fieldSize) const {
    return MakeFight(rookFights, attacker, victim, fieldSize);
}

Action* ActionFactory::CreateKnightAttack(ChessFigure3D* attacker, ChessFigure3D* victim,
                                          float fieldSize) const {
    return MakeFight(knightFights, attacker, victim, fieldSize);
}

Action* ActionFactory::CreateBishopAttack(ChessFigure3D* attacker, ChessFigure3D* victim,
                                          float fieldSize) const {
    return MakeFight(bishopFights, attacker, victim, fieldSize);
}

Action* ActionFactory::CreateQueenAttack(ChessFigure3D* attacker, ChessFigure3D* victim,
                                         float fieldSize) const {
    return MakeFight(queenFights, attacker, victim, fieldSize);
}

Action* ActionFactory::CreateKingAttack(ChessFigure3D* attacker, ChessFigure3D* victim,
                                        float fieldSize) const {
    return MakeFight(kingFights, attacker, victim, fieldSize);
}

Action* ActionFactory::CreateCastlingAction(ChessFigure3D* king, ChessFigure3D* rook, float fieldSize) const {
    return Make<CastlingAction>(king, rook, fieldSize);
}

Action* ActionFactory::CreateSelfDestructAction(ChessFigure3D* king) const {
    return Make<King_SelfDestruct>(king);
}

}  // namespace tolvane

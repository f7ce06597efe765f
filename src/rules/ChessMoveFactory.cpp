#include "rules/ChessMoveFactory.h"

#include <type_traits>

#include "rules/BishopMove.h"
#include "rules/KingMove.h"
#include "rules/KnightMove.h"
#include "rules/PawnMove.h"
#include "rules/QueenMove.h"
#include "rules/RookMove.h"

namespace tolvane {

namespace {

template <typename Move>
std::unique_ptr<ChessMove, TrivialRelease> Make() {
    static_assert(std::is_trivially_destructible_v<Move>);
    return std::unique_ptr<ChessMove, TrivialRelease>(new Move);
}

}  // namespace

std::unique_ptr<ChessMove, TrivialRelease> ChessMoveFactory::CreateMove(const ChessFigure* figure) const {
    switch (figure->GetType()) {
        case FigureType::Pawn: return Make<PawnMove>();
        case FigureType::Rook: return Make<RookMove>();
        case FigureType::Knight: return Make<KnightMove>();
        case FigureType::Bishop: return Make<BishopMove>();
        case FigureType::Queen: return Make<QueenMove>();
        case FigureType::King: return Make<KingMove>();
    }
    return nullptr;
}

}  // namespace tolvane

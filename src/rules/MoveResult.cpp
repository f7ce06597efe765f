#include "rules/MoveResult.h"

namespace tolvane {

namespace {

Coordinate* FieldOf(const ChessFigure* figure) {
    return figure == nullptr ? nullptr : new Coordinate(figure->GetX(), figure->GetY());
}

bool HasEntries(const FigureList* list) {
    return list != nullptr && !list->empty();
}

}  // namespace

Player MoveResult::CheckedPlayer() const {
    return HasEntries(attackers) ? checkedKing->GetPlayer() : Player::NoPlayer;
}

Player MoveResult::MatedPlayer() const {
    return HasEntries(mateList) ? checkedKing->GetPlayer() : Player::NoPlayer;
}

Coordinate* MoveResult::CheckedKingField() const {
    return FieldOf(checkedKing);
}

Coordinate* MoveResult::CastlingRookField() const {
    return FieldOf(castlingRook);
}

Coordinate* MoveResult::PromotionField() const {
    return FieldOf(promotionPawn);
}

Coordinate* MoveResult::DoubleStepField() const {
    return FieldOf(doubleStepPawn);
}

Coordinate* MoveResult::CapturedField() const {
    return FieldOf(captured);
}

}  // namespace tolvane

#include "rules/PawnMove.h"

#include "assets/Numbers.h"
#include "rules/BoardGeometry.h"
#include "rules/FigureOn.h"
#include "rules/GoesThrough.h"
#include "rules/InvalidMoveException.h"

namespace tolvane {

namespace {

[[noreturn]] void RejectShape() {
    throw InvalidMoveException("This Move is not Allowed! PAWN-C");
}

bool StandsOnStartRow(const ChessFigure* pawn) {
    return pawn->GetY() == PawnRow(pawn->GetPlayer());
}

bool StandsOnEnPassantRow(const ChessFigure* pawn) {
    return pawn->GetY() == EnPassantRow(pawn->GetPlayer());
}

bool IsEmpty(ChessBoard* board, int x, int y) {
    return FigureOn(board, x, y) == nullptr;
}

void AddEnPassant(CoordinateList& fields, ChessBoard* board, const ChessFigure* pawn) {
    const ChessFigure* candidate = board->GetDoubleStepPawn();
    if (candidate == nullptr || !AreEnemies(candidate, pawn) || ColumnsTo(pawn, candidate->GetX()) != 1) {
        return;
    }
    const int x = candidate->GetX();
    const int y = candidate->GetY() + Forward(pawn->GetPlayer());
    if (IsEmpty(board, x, y)) {
        fields.insert(new Coordinate(x, y));
    }
}

}  // namespace

ChessFigure* PawnMove::Validate(ChessBoard* board, ChessFigure* figure, int x, int y) const {
    RequireTarget(x, y);
    const int rows = RowsTo(figure, y);
    if (Sign(y - figure->GetY()) != Forward(figure->GetPlayer()) || rows > 2) {
        throw InvalidMoveException("This Move is not Allowed! PAWN-A");
    }
    if (x == figure->GetX()) {
        return rows == 2 ? ValidateDoubleStep(board, figure, x, y) : ValidateStep(board, figure, x, y);
    }
    if (rows == 1 && ColumnsTo(figure, x) == 1) {
        return ValidateCapture(board, figure, x, y);
    }
    RejectShape();
}

ChessFigure* PawnMove::ValidateDoubleStep(ChessBoard* board, ChessFigure* pawn, int x, int y) const {
    if (!StandsOnStartRow(pawn)) {
        throw InvalidMoveException("This Move is not Allowed! PAWN-B");
    }
    return WalkVertical(board, pawn, pawn->GetX(), pawn->GetY(), x, y);
}

ChessFigure* PawnMove::ValidateStep(ChessBoard* board, ChessFigure* pawn, int x, int y) const {
    if (WalkVertical(board, pawn, pawn->GetX(), pawn->GetY(), x, y) != nullptr) {
        RejectShape();
    }
    return nullptr;
}

ChessFigure* PawnMove::ValidateCapture(ChessBoard* board, ChessFigure* pawn, int x, int y) const {
    if (ChessFigure* occupant = FigureOn(board, x, y)) {
        if (!AreEnemies(occupant, pawn)) {
            RejectShape();
        }
        return occupant;
    }
    ChessFigure* candidate = board->GetDoubleStepPawn();
    if (candidate == nullptr || !StandsOnEnPassantRow(pawn)) {
        RejectShape();
    }
    board->RemoveFigure(candidate);
    return candidate;
}

ChessFigure* PawnMove::Execute(ChessBoard* board, ChessFigure* figure, int x, int y) const {
    ChessFigure* captured = Validate(board, figure, x, y);
    board->ApplyMove(figure, x, y);
    return captured;
}

bool PawnMove::IsAllowed(ChessBoard* board, ChessFigure* figure, int x, int y) const {
    return GoesThrough([&] { Validate(board, figure, x, y); });
}

OwnedCoordinates PawnMove::ReachableFields(ChessBoard* board, ChessFigure* figure) const {
    OwnedCoordinates fields = NoCoordinates();
    const int x = figure->GetX();
    const int dir = Forward(figure->GetPlayer());
    const int ahead = figure->GetY() + dir;
    if (StandsOnStartRow(figure) && IsEmpty(board, x, ahead) && IsEmpty(board, x, ahead + dir)) {
        fields->insert(new Coordinate(x, ahead + dir));
    } else if (StandsOnEnPassantRow(figure)) {
        AddEnPassant(*fields, board, figure);
    }
    if (IsEmpty(board, x, ahead)) {
        fields->insert(new Coordinate(x, ahead));
    }
    for (const int aside : {x + 1, x - 1}) {
        if (!OnBoard(aside, ahead)) {
            continue;
        }
        const ChessFigure* occupant = FigureOn(board, aside, ahead);
        if (occupant != nullptr && AreEnemies(occupant, figure)) {
            fields->insert(new Coordinate(aside, ahead));
        }
    }
    return fields;
}

}  // namespace tolvane

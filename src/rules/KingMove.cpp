#include "rules/KingMove.h"

#include <vector>

#include "assets/Numbers.h"
#include "rules/BoardGeometry.h"
#include "rules/ChessMoveFactory.h"
#include "rules/Coordinate.h"
#include "rules/FigureOn.h"
#include "rules/GoesThrough.h"
#include "rules/InvalidMoveException.h"
#include "rules/KingIsCheckException.h"
#include "rules/Rook.h"

namespace tolvane {

namespace {

constexpr int longCastlingColumn = 2;
constexpr int shortCastlingColumn = 6;

// The fields beside the king that an own figure does not hold, column by column.
std::vector<Coordinate> FieldsBeside(ChessBoard* board, const King* king) {
    std::vector<Coordinate> fields;
    for (int dx = -1; dx <= 1; ++dx) {
        for (int dy = -1; dy <= 1; ++dy) {
            const int x = king->GetX() + dx;
            const int y = king->GetY() + dy;
            if ((dx == 0 && dy == 0) || !OnBoard(x, y)) {
                continue;
            }
            const ChessFigure* occupant = FigureOn(board, x, y);
            if (occupant == nullptr || AreEnemies(occupant, king)) {
                fields.emplace_back(x, y);
            }
        }
    }
    return fields;
}

// Where a figure has to go to end an attack: from the field beside the king up to the attacker's own.
std::vector<Coordinate> FieldsThatEnd(const ChessFigure* attacker, const King* king) {
    if (attacker->GetType() == FigureType::Knight) {
        return {Coordinate(attacker->GetX(), attacker->GetY())};
    }
    std::vector<Coordinate> fields;
    int dx = king->GetX() - attacker->GetX();
    int dy = king->GetY() - attacker->GetY();
    while (dx != 0 || dy != 0) {
        dx -= Sign(dx);
        dy -= Sign(dy);
        fields.emplace_back(attacker->GetX() + dx, attacker->GetY() + dy);
    }
    return fields;
}

int CornerTowards(int dir) {
    return dir < 0 ? 0 : boardSize - 1;
}

Rook* RequireCastlingRook(ChessBoard* board, const King* king, int dir) {
    ChessFigure* corner = FigureOn(board, CornerTowards(dir), king->GetY());
    if (corner == nullptr || corner->GetType() != FigureType::Rook) {
        throw InvalidMoveException("This is not a Rook has already been moved! A");
    }
    auto* rook = static_cast<Rook*>(corner);
    if (AreEnemies(rook, king) || rook->HasMoved()) {
        throw InvalidMoveException("The Rook has already been moved! B");
    }
    return rook;
}

}  // namespace

ChessFigure* KingMove::Execute(ChessBoard* board, ChessFigure* figure, int x, int y) const {
    ChessFigure* captured = ValidateStep(board, static_cast<King*>(figure), x, y, false);
    board->ApplyMove(figure, x, y);
    return captured;
}

bool KingMove::IsAllowed(ChessBoard* board, ChessFigure* figure, int x, int y) const {
    return GoesThrough([&] { ValidateStep(board, static_cast<King*>(figure), x, y, true); });
}

ChessFigure* KingMove::ValidateStep(ChessBoard* board, King* king, int x, int y, bool testOnly) const {
    if (!king->HasMoved() && ColumnsTo(king, x) == 2 && y == king->GetY()) {
        Castle(board, king, x, y, testOnly);
        return nullptr;
    }
    if (ColumnsTo(king, x) > 1 || RowsTo(king, y) > 1) {
        throw InvalidMoveException("The king can only move 1 field in each direction!");
    }
    ChessFigure* occupant = FigureOn(board, x, y);
    if (occupant != nullptr && !AreEnemies(occupant, king)) {
        throw InvalidMoveException("This Move is not Allowed!");
    }
    if (IsAttacked(board, king, x, y)) {
        throw KingIsCheckException("The field is not check free!");
    }
    return occupant;
}

OwnedCoordinates KingMove::ReachableFields(ChessBoard* board, ChessFigure* figure) const {
    auto* king = static_cast<King*>(figure);
    OwnedCoordinates fields = NoCoordinates();
    for (const Coordinate& field : FieldsBeside(board, king)) {
        if (!IsAttacked(board, king, field.GetX(), field.GetY())) {
            fields->insert(new Coordinate(field));
        }
    }
    for (const int column : {longCastlingColumn, shortCastlingColumn}) {
        if (GoesThrough([&] { Castle(board, king, column, king->GetY(), true); })) {
            fields->insert(new Coordinate(column, king->GetY()));
        }
    }
    return fields;
}

std::unique_ptr<FigureList> KingMove::Attackers(ChessBoard* board, King* king, int x, int y) const {
    auto attackers = std::make_unique<FigureList>();
    for (ChessFigure* enemy : *board->GetFigures(Opponent(king->GetPlayer()))) {
        if (Attacks(board, enemy, king, x, y)) {
            attackers->push_back(enemy);
        }
    }
    return attackers;
}

bool KingMove::IsAttacked(ChessBoard* board, King* king, int x, int y) const {
    return !Attackers(board, king, x, y)->empty();
}

bool KingMove::Attacks(ChessBoard* board, ChessFigure* enemy, const King* king, int x, int y) const {
    if (StandsOn(enemy, king->GetX(), king->GetY())) {
        return false;
    }
    if (enemy->GetType() == FigureType::Pawn) {
        return ColumnsTo(enemy, x) == 1 && enemy->GetY() - y == Forward(king->GetPlayer());
    }
    if (enemy->GetType() == FigureType::King) {
        return ColumnsTo(enemy, x) <= 1 && RowsTo(enemy, y) <= 1;
    }
    return ChessMoveFactory().CreateMove(enemy)->IsAllowed(board, enemy, x, y);
}

std::unique_ptr<FigureList> KingMove::CheckMateTest(ChessBoard* board, King* king,
                                                    const FigureList& attackers) const {
    if (attackers.empty()) {
        return nullptr;
    }
    for (ChessFigure* attacker : attackers) {
        if (CanNeutralise(board, king, attacker)) {
            return nullptr;
        }
    }
    auto holders = std::make_unique<FigureList>();
    for (const Coordinate& field : FieldsBeside(board, king)) {
        const auto attackersOfField = Attackers(board, king, field.GetX(), field.GetY());
        if (attackersOfField->empty()) {
            return nullptr;
        }
        holders->insert(holders->end(), attackersOfField->begin(), attackersOfField->end());
    }
    return holders;
}

bool KingMove::CanNeutralise(ChessBoard* board, King* king, ChessFigure* attacker) const {
    const std::vector<Coordinate> targets = FieldsThatEnd(attacker, king);
    for (ChessFigure* figure : *board->GetFigures(king->GetPlayer())) {
        const auto move = ChessMoveFactory().CreateMove(figure);
        for (const Coordinate& target : targets) {
            // Pawns are not counted on along the attacker's column, not even to take it.
            if (figure->GetType() == FigureType::Pawn && target.GetX() == attacker->GetX()) {
                continue;
            }
            // A pawn that is allowed may just have taken a figure out of the list being walked: leave at
            // once.
            if (move->IsAllowed(board, figure, target.GetX(), target.GetY())) {
                return true;
            }
        }
    }
    return false;
}

void KingMove::Castle(ChessBoard* board, King* king, int x, int /*y*/, bool testOnly) const {
    const int dir = Sign(x - king->GetX());
    if (king->HasMoved()) {
        throw InvalidMoveException("The King has already been moved!");
    }
    Rook* rook = RequireCastlingRook(board, king, dir);
    RequireFreeWay(board, king, dir);
    if (testOnly) {
        return;
    }
    board->ApplyMove(rook, dir < 0 ? longCastlingColumn + 1 : shortCastlingColumn - 1, rook->GetY());
    board->SetCastlingRook(rook);
}

void KingMove::RequireFreeWay(ChessBoard* board, King* king, int dir) const {
    const int row = king->GetY();
    const int steps = ColumnsTo(king, CornerTowards(dir));
    for (int i = 0; i <= steps; ++i) {
        const int column = king->GetX() + i * dir;
        const bool isBetween = i != 0 && column != 0 && column != boardSize - 1;
        if (isBetween && FigureOn(board, column, row) != nullptr) {
            throw InvalidMoveException("The fields between king and rook are not free!");
        }
        if (IsAttacked(board, king, column, row)) {
            throw InvalidMoveException("The fields between king and rook are not check free!");
        }
    }
}

}  // namespace tolvane

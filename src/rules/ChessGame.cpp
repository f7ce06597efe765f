#include "rules/ChessGame.h"

#include <utility>

#include "rules/ChessMoveFactory.h"
#include "rules/FigureOn.h"
#include "rules/InvalidMoveException.h"
#include "rules/King.h"
#include "rules/KingMove.h"

namespace tolvane {

namespace {

constexpr int notUndone = -1;  // what a played move has for the number of the move that it undoes

}  // namespace

ChessGame::ChessGame() : ChessGame(std::make_unique<ChessBoard>(true)) {}

ChessGame::ChessGame(std::unique_ptr<ChessBoard> position) : board(std::move(position)) {
    history.emplace_back(0, Coordinate(), Coordinate(), nullptr, nullptr, notUndone);
}

ChessFigure* ChessGame::FigureToMove(int x, int y) {
    ChessFigure* figure = FigureOn(board.get(), x, y);
    if (figure == nullptr) {
        throw InvalidMoveException("There is no figure positioned on source-coordinate");
    }
    return figure;
}

MoveResult ChessGame::PlayMove(const Coordinate* source, const Coordinate* target) {
    board->SetCastlingRook(nullptr);
    ChessFigure* figure = FigureToMove(source->GetX(), source->GetY());
    ChessFigure* captured =
        ChessMoveFactory().CreateMove(figure)->Execute(board.get(), figure, target->GetX(), target->GetY());
    board->SetCheckedKing(nullptr);
    board->SetMatedKing(nullptr);
    King* ownKing = board->GetKing(figure->GetPlayer());
    if (!KingMove().Attackers(board.get(), ownKing, ownKing->GetX(), ownKing->GetY())->empty()) {
        board->RestoreMove(*source, *target, figure, captured);
        throw InvalidMoveException("The King is Check! MAIN");
    }
    MoveResult result = JudgeKing(board->GetKing(Opponent(figure->GetPlayer())));
    RecordMove(*source, *target, figure, captured, notUndone);
    result.castlingRook = board->GetCastlingRook();
    result.promotionPawn = board->GetPromotionPawn();
    result.doubleStepPawn = board->GetDoubleStepPawn();
    result.captured = captured;
    return result;
}

CoordinateList* ChessGame::ReachableFields(int x, int y) {
    ChessFigure* figure = FigureToMove(x, y);
    return ChessMoveFactory().CreateMove(figure)->ReachableFields(board.get(), figure).release();
}

MoveResult ChessGame::PromotePawn(FigureType type) {
    King* otherKing = board->GetKing(Opponent(board->GetPromotionPawn()->GetPlayer()));
    board->Promote(type);
    board->SetCheckedKing(nullptr);
    board->SetMatedKing(nullptr);
    return JudgeKing(otherKing);
}

// Whether the king stands in check, and in mate.
MoveResult ChessGame::JudgeKing(King* king) {
    const KingMove kingMove;
    MoveResult result;
    result.attackers = Keep(kingMove.Attackers(board.get(), king, king->GetX(), king->GetY()));
    if (!result.attackers->empty()) {
        board->SetCheckedKing(king);
        result.mateList = Keep(kingMove.CheckMateTest(board.get(), king, *result.attackers));
        if (result.mateList != nullptr && !result.mateList->empty()) {
            board->SetMatedKing(king);
        }
    }
    result.checkedKing = board->GetCheckedKing();
    return result;
}

FigureList* ChessGame::Keep(std::unique_ptr<FigureList> list) {
    if (list == nullptr) {
        return nullptr;
    }
    handedOut.push_back(std::move(list));
    return handedOut.back().get();
}

ChessBoardView ChessGame::GetBoardView() {
    return ChessBoardView(board.get());
}

void ChessGame::RecordMove(const Coordinate& source, const Coordinate& target, ChessFigure* figure,
                           ChessFigure* captured, int undoneNumber) {
    const int number = history.size() > 1 ? history.back().GetNumber() + 1 : 1;
    history.emplace_back(number, source, target, figure, captured, undoneNumber);
}

void ChessGame::UndoMove() {
    if (history.empty()) {
        return;
    }
    ChessMoveRecord record = history.back();
    if (record.GetUndoneNumber() == 1) {
        return;
    }
    while (record.GetUndoneNumber() > 0) {
        const auto before = static_cast<std::size_t>(record.GetUndoneNumber()) - 1;
        if (before >= history.size()) {
            return;  // an entry of somebody else's making that leads nowhere
        }
        record = history[before];
    }
    if (record.GetFigure() == nullptr) {
        return;  // the start position, to which no move has led
    }
    board->UndoRecord(record);
    RecordMove(Coordinate(), Coordinate(), nullptr, nullptr, record.GetNumber());
}

}  // namespace tolvane

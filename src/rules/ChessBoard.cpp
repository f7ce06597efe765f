#include "rules/ChessBoard.h"

#include <algorithm>
#include <type_traits>

#include "assets/InvalidParameterException.h"
#include "rules/Bishop.h"
#include "rules/BoardGeometry.h"
#include "rules/ChessMoveRecord.h"
#include "rules/FigureOn.h"
#include "rules/Knight.h"
#include "rules/Pawn.h"
#include "rules/Queen.h"
#include "rules/Rook.h"

namespace tolvane {

namespace {

// Figures in a list are told apart by what they are and where they stand, not by identity.
bool LooksLike(const ChessFigure& figure, const ChessFigure& other) {
    return StandsOn(&figure, other.GetX(), other.GetY()) && figure.GetPlayer() == other.GetPlayer() &&
           figure.GetType() == other.GetType();
}

void EraseFirstLike(FigureList* list, const ChessFigure& figure) {
    const auto found = std::find_if(list->begin(), list->end(), [&figure](const ChessFigure* entry) {
        return LooksLike(*entry, figure);
    });
    if (found != list->end()) {
        list->erase(found);
    }
}

}  // namespace

ChessBoard::ChessBoard(bool setUp) : Board(boardSize, boardSize) {
    if (setUp) {
        ChessBoard::SetUp();
    }
}

template <typename Kind>
Kind* ChessBoard::Create(int x, int y, Player player) {
    static_assert(std::is_trivially_destructible_v<Kind>);
    auto* figure = new Kind(x, y, true, player);
    figures.emplace_back(figure);
    return figure;
}

void ChessBoard::Lay(ChessFigure* figure) {
    FieldAt(figure->GetX(), figure->GetY()).SetElement(figure);
}

void ChessBoard::SetUp() {
    doubleStepPawn = nullptr;
    promotionPawn = nullptr;
    currentPlayer = Player::White;
    checkedKing = nullptr;
    matedKing = nullptr;
    castlingRook = nullptr;
    whiteFigures = std::make_unique<FigureList>();
    blackFigures = std::make_unique<FigureList>();
    capturedFigures = std::make_unique<FigureList>();
    for (int x = 0; x < boardSize; ++x) {
        for (int y = 0; y < boardSize; ++y) {
            SetField(Field(x, y));
        }
    }
    whiteKing = Create<King>(4, BackRow(Player::White), Player::White);
    blackKing = Create<King>(4, BackRow(Player::Black), Player::Black);
    LayRows(Player::White, whiteKing);
    LayRows(Player::Black, blackKing);
    ListRows(Player::White);
    ListRows(Player::Black);
}

void ChessBoard::LayRows(Player player, King* king) {
    const int row = BackRow(player);
    Lay(Create<Rook>(0, row, player));
    Lay(Create<Knight>(1, row, player));
    Lay(Create<Bishop>(2, row, player));
    Lay(Create<Queen>(3, row, player));
    Lay(king);
    Lay(Create<Bishop>(5, row, player));
    Lay(Create<Knight>(6, row, player));
    Lay(Create<Rook>(7, row, player));
    for (int x = 0; x < boardSize; ++x) {
        Lay(Create<Pawn>(x, PawnRow(player), player));
    }
}

void ChessBoard::ListRows(Player player) {
    for (const int row : {BackRow(player), PawnRow(player)}) {
        for (int x = 0; x < boardSize; ++x) {
            GetFigures(player)->push_back(FigureOn(this, x, row));
        }
    }
}

FigureList* ChessBoard::GetFigures(Player player) {
    return player == Player::White ? whiteFigures.get() : blackFigures.get();
}

void ChessBoard::ApplyMove(ChessFigure* figure, int x, int y) {
    Field& source = FieldAt(figure->GetX(), figure->GetY());
    Field& target = FieldAt(x, y);
    doubleStepPawn = nullptr;
    promotionPawn = nullptr;
    if (figure->GetType() == FigureType::Pawn) {
        if (RowsTo(figure, y) == 2) {
            doubleStepPawn = figure;
        } else if (y == LastRow(figure->GetPlayer())) {
            promotionPawn = figure;
        }
    }
    if (ChessFigure* capturedFigure = FigureOn(this, x, y)) {
        capturedFigure->SetAlive(false);
        capturedFigures->push_back(capturedFigure);
        RemoveFigure(capturedFigure);
    }
    source.SetElement(nullptr);
    figure->MoveTo(x, y);
    target.SetElement(figure);
    currentPlayer = Opponent(currentPlayer);
}

void ChessBoard::RemoveFigure(ChessFigure* figure) {
    FieldAt(figure->GetX(), figure->GetY()).SetElement(nullptr);
    EraseFirstLike(GetFigures(figure->GetPlayer()), *figure);
}

void ChessBoard::RestoreMove(const Coordinate& source, const Coordinate& target, ChessFigure* figure,
                             ChessFigure* captured) {
    FieldAt(source.GetX(), source.GetY()).SetElement(figure);
    figure->SetPosition(source.GetX(), source.GetY());
    FieldAt(target.GetX(), target.GetY()).SetElement(captured);
    if (captured != nullptr) {
        captured->SetAlive(true);
        EraseFirstLike(capturedFigures.get(), *captured);
        GetFigures(captured->GetPlayer())->push_back(captured);
    }
}

void ChessBoard::UndoRecord(const ChessMoveRecord& record) {
    RestoreMove(*record.GetSource(), *record.GetTarget(), record.GetFigure(), record.GetCaptured());
}

void ChessBoard::Promote(FigureType type) {
    if (promotionPawn == nullptr) {
        return;
    }
    RemoveFigure(promotionPawn);
    ChessFigure* promoted = CreatePromoted(type);
    GetFigures(promoted->GetPlayer())->push_back(promoted);
    Lay(promoted);
    promotionPawn = nullptr;  // the pawn itself stays in the board's keeping: the history points at it
}

ChessFigure* ChessBoard::CreatePromoted(FigureType type) {
    const int x = promotionPawn->GetX();
    const int y = promotionPawn->GetY();
    const Player player = promotionPawn->GetPlayer();
    switch (type) {
        case FigureType::Rook: return Create<Rook>(x, y, player);
        case FigureType::Knight: return Create<Knight>(x, y, player);
        case FigureType::Bishop: return Create<Bishop>(x, y, player);
        case FigureType::Queen: return Create<Queen>(x, y, player);
        case FigureType::Pawn:
        case FigureType::King: break;
    }
    throw InvalidParameterException("A Pawn can only promote to a Queen, Rook, Knight or Bishop!");
}

}  // namespace tolvane

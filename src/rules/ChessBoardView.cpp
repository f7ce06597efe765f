#include "rules/ChessBoardView.h"

#include "assets/Exception.h"
#include "rules/ChessBoard.h"
#include "rules/FigureOn.h"

namespace tolvane {

namespace {

constexpr int kindsOfFigures = 6;

ChessGameFigure CodeOf(const ChessFigure* figure) {
    if (figure == nullptr) {
        return ChessGameFigure::NoFigure;
    }
    const int kind = static_cast<int>(figure->GetType());
    if (kind < 0 || kind >= kindsOfFigures) {
        throw Exception("Unkown Figure Type!!!");
    }
    return static_cast<ChessGameFigure>(figure->GetPlayer() == Player::White ? kind : kindsOfFigures + kind);
}

}  // namespace

ChessBoardView::ChessBoardView(ChessBoard* position) : board(position) {}

ChessGameFigure ChessBoardView::FigureAt(int x, int y) const {
    return CodeOf(FigureOn(board, x, y));
}

std::unique_ptr<std::vector<ChessGameFigure>> ChessBoardView::CapturedCodes() const {
    auto codes = std::make_unique<std::vector<ChessGameFigure>>();
    for (const ChessFigure* figure : *static_cast<ChessBoard*>(board)->GetCaptured()) {
        codes->push_back(CodeOf(figure));
    }
    return codes;
}

}  // namespace tolvane

#include "rules/ChessBoardView.h"

#include <gtest/gtest.h>

#include "rules/FigureOn.h"
#include "rules/Position.h"

namespace tolvane {
namespace {

TEST(ChessBoardView, SeesTheStartPosition) {
    ChessBoard board(true);
    const ChessBoardView view(&board);
    EXPECT_EQ(view.FigureAt(0, 0), ChessGameFigure::WhiteRook);
    EXPECT_EQ(view.FigureAt(4, 7), ChessGameFigure::BlackKing);
    EXPECT_EQ(view.FigureAt(3, 3), ChessGameFigure::NoFigure);
}

TEST(ChessBoardView, HasACodeForEachFigure) {
    ChessBoard board(true);
    const ChessBoardView view(&board);
    struct Row {
        const char* field;
        ChessGameFigure figure;
        int code;
    };
    const Row rows[] = {
        {"a2", ChessGameFigure::WhitePawn, 0},   {"h1", ChessGameFigure::WhiteRook, 1},
        {"b1", ChessGameFigure::WhiteKnight, 2}, {"c1", ChessGameFigure::WhiteBishop, 3},
        {"d1", ChessGameFigure::WhiteQueen, 4},  {"e1", ChessGameFigure::WhiteKing, 5},
        {"h7", ChessGameFigure::BlackPawn, 6},   {"a8", ChessGameFigure::BlackRook, 7},
        {"g8", ChessGameFigure::BlackKnight, 8}, {"f8", ChessGameFigure::BlackBishop, 9},
        {"d8", ChessGameFigure::BlackQueen, 10}, {"e8", ChessGameFigure::BlackKing, 11},
        {"e5", ChessGameFigure::NoFigure, 12},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(view.FigureAt(At(row.field).GetX(), At(row.field).GetY()), row.figure) << row.field;
        EXPECT_EQ(static_cast<int>(row.figure), row.code) << row.field;
    }
}

TEST(ChessBoardView, RefusesPlacesOffTheBoard) {
    ChessBoard board(true);
    const ChessBoardView view(&board);
    EXPECT_EQ(Refusal([&view] { view.FigureAt(8, 0); }),
              "InvalidParameterException: Coordinate(s) are out of bound!");
    EXPECT_EQ(Refusal([&view] { view.FigureAt(0, -1); }),
              "InvalidParameterException: Coordinate(s) are out of bound!");
}

TEST(ChessBoardView, ListsTheCapturedInOrderOfCapture) {
    ChessBoard board(true);
    const ChessBoardView view(&board);
    EXPECT_TRUE(view.CapturedCodes()->empty());
    board.ApplyMove(On(&board, "d1"), 4, 6);
    board.ApplyMove(On(&board, "f8"), 4, 6);
    board.ApplyMove(On(&board, "b1"), 6, 7);
    EXPECT_EQ(*view.CapturedCodes(), (std::vector{ChessGameFigure::BlackPawn, ChessGameFigure::WhiteQueen,
                                                  ChessGameFigure::BlackKnight}));
}

TEST(ChessBoardView, RefusesFiguresOfNoKnownType) {
    ChessBoard board(true);
    const ChessBoardView view(&board);
    for (const int type : {6, 12, -1}) {
        ChessFigure stranger(3, 3, true, Player::White, static_cast<FigureType>(type));
        board.FieldAt(3, 3).SetElement(&stranger);
        EXPECT_EQ(Refusal([&view] { view.FigureAt(3, 3); }), "Exception: Unkown Figure Type!!!") << type;
        board.GetCaptured()->push_back(&stranger);
        EXPECT_EQ(Refusal([&view] { view.CapturedCodes(); }), "Exception: Unkown Figure Type!!!") << type;
        board.GetCaptured()->clear();
    }
}

TEST(ChessBoardView, FollowsTheGame) {
    ChessGame game;
    const ChessBoardView view = game.GetBoardView();
    Play(game, "e2", "e4");
    EXPECT_EQ(view.FigureAt(4, 1), ChessGameFigure::NoFigure);
    EXPECT_EQ(view.FigureAt(4, 3), ChessGameFigure::WhitePawn);
}

}  // namespace
}  // namespace tolvane

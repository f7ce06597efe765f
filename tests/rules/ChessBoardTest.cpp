#include "rules/ChessBoard.h"

#include <gtest/gtest.h>

#include "rules/ChessMoveRecord.h"
#include "rules/FigureOn.h"
#include "rules/Pawn.h"
#include "rules/Position.h"
#include "rules/Rook.h"

namespace tolvane {
namespace {

constexpr const char* startPosition = R"(
    r n b q k b n r
    p p p p p p p p
    . . . . . . . .
    . . . . . . . .
    . . . . . . . .
    . . . . . . . .
    P P P P P P P P
    R N B Q K B N R
)";

constexpr const char* openPosition = R"(
    r . . . k . . r
    p . . . . . . .
    . . . . . . . .
    . . . p . . . .
    . . . . P . . .
    . . . . . . . .
    . P . . . . . .
    R . . Q K . . R
)";

TEST(ChessBoard, LaysTheStartPositionAndCarriesMovesOut) {
    ChessBoard board(true);
    EXPECT_EQ(Picture(&board), WithoutBlanks(startPosition));
    board.ApplyMove(On(&board, "e2"), 4, 3);
    board.ApplyMove(On(&board, "d7"), 3, 4);
    board.ApplyMove(On(&board, "e4"), 3, 4);
    EXPECT_EQ(Picture(&board), WithoutBlanks(R"(
        r n b q k b n r
        p p p . p p p p
        . . . . . . . .
        . . . P . . . .
        . . . . . . . .
        . . . . . . . .
        P P P P . P P P
        R N B Q K B N R
    )"));
    EXPECT_EQ(Names(board.GetCaptured()), "pd5");
}

TEST(ChessBoard, ListsEachSideFromItsBackRowOn) {
    ChessBoard board(true);
    EXPECT_EQ(Names(board.GetFigures(Player::White)),
              "Ra1 Nb1 Bc1 Qd1 Ke1 Bf1 Ng1 Rh1 Pa2 Pb2 Pc2 Pd2 Pe2 Pf2 Pg2 Ph2");
    EXPECT_EQ(Names(board.GetFigures(Player::Black)),
              "ra8 nb8 bc8 qd8 ke8 bf8 ng8 rh8 pa7 pb7 pc7 pd7 pe7 pf7 pg7 ph7");
    EXPECT_EQ(board.GetFigures(Player::White)->size(), 16u);
    EXPECT_EQ(board.GetFigures(Player::Black)->size(), 16u);
    EXPECT_TRUE(board.GetCaptured()->empty());
}

TEST(ChessBoard, AnswersBlackFiguresForAnyoneButWhite) {
    ChessBoard board(true);
    EXPECT_EQ(board.GetFigures(Player::NoPlayer), board.GetFigures(Player::Black));
    EXPECT_NE(board.GetFigures(Player::White), board.GetFigures(Player::Black));
}

TEST(ChessBoard, NumbersEveryFieldByItsPlace) {
    ChessBoard board(true);
    for (int x = 0; x < 8; ++x) {
        for (int y = 0; y < 8; ++y) {
            EXPECT_EQ(board.FieldAt(x, y).GetX(), x);
            EXPECT_EQ(board.FieldAt(x, y).GetY(), y);
            if (const ChessFigure* figure = FigureOn(&board, x, y)) {
                EXPECT_EQ(NameOf(figure->GetX(), figure->GetY()), NameOf(x, y));
                EXPECT_TRUE(figure->IsAlive());
            }
        }
    }
}

TEST(ChessBoard, KnowsItsKings) {
    ChessBoard board(true);
    EXPECT_EQ(board.GetKing(Player::White), On(&board, "e1"));
    EXPECT_EQ(board.GetKing(Player::Black), On(&board, "e8"));
}

TEST(ChessBoard, StartsWithNothingLeftBehind) {
    ChessBoard board(true);
    EXPECT_EQ(board.GetDoubleStepPawn(), nullptr);
    EXPECT_EQ(board.GetPromotionPawn(), nullptr);
    EXPECT_EQ(board.GetCheckedKing(), nullptr);
    EXPECT_EQ(board.GetMatedKing(), nullptr);
    EXPECT_EQ(board.GetCastlingRook(), nullptr);
    EXPECT_EQ(board.GetCurrentPlayer(), Player::White);
}

TEST(ChessBoard, WaitsForSetUpWhenAsked) {
    ChessBoard board(false);
    EXPECT_EQ(board.FieldAt(7, 7).GetElement(), nullptr);
    EXPECT_EQ(board.FieldAt(4, 0).GetElement(), nullptr);
    EXPECT_EQ(Refusal([&board] { board.FieldAt(8, 0); }),
              "InvalidParameterException: Coordinate(s) are out of bound!");
    board.SetUp();
    EXPECT_EQ(Picture(&board), WithoutBlanks(startPosition));
}

TEST(ChessBoard, ForgetsEverythingInSetUp) {
    ChessBoard board(true);
    const std::string fresh = Snapshot(&board);
    board.ApplyMove(On(&board, "e1"), 4, 6);
    board.ApplyMove(On(&board, "a1"), 0, 6);
    board.ApplyMove(On(&board, "h2"), 7, 3);
    board.SetCheckedKing(On(&board, "e8"));
    board.SetMatedKing(On(&board, "e8"));
    board.SetCastlingRook(On(&board, "h8"));
    EXPECT_NE(Snapshot(&board), fresh);
    board.SetUp();
    EXPECT_EQ(Snapshot(&board), fresh);
    EXPECT_EQ(board.GetKing(Player::White), On(&board, "e1"));
}

TEST(ChessBoard, HasTheCornersOnIt) {
    ChessBoard board(true);
    EXPECT_EQ(board.FieldAt(7, 7).GetX(), 7);
    for (const auto& [x, y] : {std::pair(8, 0), {0, 8}, {-1, 0}}) {
        EXPECT_EQ(Refusal([&board, column = x, row = y] { board.FieldAt(column, row); }),
                  "InvalidParameterException: Coordinate(s) are out of bound!");
    }
}

TEST(ChessBoard, KeepsWhatItIsTold) {
    ChessBoard board(true);
    board.SetCheckedKing(board.GetKing(Player::White));
    board.SetMatedKing(board.GetKing(Player::Black));
    board.SetCastlingRook(On(&board, "h1"));
    EXPECT_EQ(board.GetCheckedKing(), board.GetKing(Player::White));
    EXPECT_EQ(board.GetMatedKing(), board.GetKing(Player::Black));
    EXPECT_EQ(board.GetCastlingRook(), On(&board, "h1"));
    board.ApplyMove(On(&board, "a2"), 0, 2);
    EXPECT_EQ(board.GetCheckedKing(), board.GetKing(Player::White));
    EXPECT_EQ(board.GetMatedKing(), board.GetKing(Player::Black));
    EXPECT_EQ(board.GetCastlingRook(), On(&board, "h1"));
}

// ApplyMove

TEST(ChessBoardApplyMove, AsksNothingAboutTheRules) {
    ChessBoard board(true);
    ChessFigure* rook = On(&board, "a1");
    board.ApplyMove(rook, 5, 4);
    EXPECT_EQ(On(&board, "f5"), rook);
    EXPECT_EQ(board.FieldAt(0, 0).GetElement(), nullptr);
    EXPECT_EQ(NameOf(rook), "Rf5");
}

TEST(ChessBoardApplyMove, RemembersADoubleStepForOneMove) {
    for (const auto& [from, row, other] : {std::tuple("c2", 3, "h7"), {"c7", 4, "h2"}}) {
        ChessBoard board(true);
        ChessFigure* pawn = On(&board, from);
        board.ApplyMove(pawn, 2, row);
        EXPECT_EQ(board.GetDoubleStepPawn(), pawn);
        ChessFigure* next = On(&board, other);
        board.ApplyMove(next, next->GetX(), next->GetY() == 1 ? 2 : 5);
        EXPECT_EQ(board.GetDoubleStepPawn(), nullptr);
    }
}

TEST(ChessBoardApplyMove, RemembersADoubleStepThatCaptures) {
    const auto board = Lay(openPosition);
    board->ApplyMove(On(board.get(), "d5"), 1, 3);
    board->ApplyMove(On(board.get(), "b2"), 1, 3);
    EXPECT_EQ(NameOf(board->GetDoubleStepPawn()), "Pb4");
    EXPECT_EQ(Names(board->GetCaptured()), "pb4");
}

TEST(ChessBoardApplyMove, ForgetsTheDoubleStepWhoeverMovesNext) {
    for (const char* next : {"a1", "b1", "c1", "d1", "e1", "a2", "a8", "e8", "h7"}) {
        ChessBoard board(true);
        board.ApplyMove(On(&board, "e2"), 4, 3);
        ASSERT_NE(board.GetDoubleStepPawn(), nullptr);
        board.ApplyMove(On(&board, next), 3, 4);
        EXPECT_EQ(board.GetDoubleStepPawn() != nullptr, next == std::string("h7")) << next;
        EXPECT_NE(NameOf(board.GetDoubleStepPawn()), "Pe4") << next;
    }
}

TEST(ChessBoardApplyMove, RemembersNoStepOfOtherFigures) {
    const auto board = Lay(openPosition);
    board->ApplyMove(On(board.get(), "a1"), 0, 2);
    EXPECT_EQ(board->GetDoubleStepPawn(), nullptr);
    board->ApplyMove(On(board.get(), "a3"), 0, 5);
    EXPECT_EQ(board->GetDoubleStepPawn(), nullptr);
    board->ApplyMove(On(board.get(), "b2"), 1, 2);
    EXPECT_EQ(board->GetDoubleStepPawn(), nullptr);
}

TEST(ChessBoardApplyMove, LetsAPawnOnTheLastRowWait) {
    struct Row {
        const char* pawn;
        int x;
        int y;
        const char* waiting;
    };
    const Row rows[] = {
        {"b2", 1, 7, "Pb8"}, {"a7", 0, 0, "pa1"}, {"b2", 0, 7, "Pa8"}, {"b2", 1, 0, "-"}, {"a7", 1, 7, "-"},
    };
    for (const Row& row : rows) {
        const auto board = Lay(openPosition);
        board->ApplyMove(On(board.get(), row.pawn), row.x, row.y);
        EXPECT_EQ(NameOf(board->GetPromotionPawn()), row.waiting) << row.pawn;
        EXPECT_EQ(board->GetDoubleStepPawn(), nullptr);
        board->ApplyMove(On(board.get(), "e1"), 4, 1);
        EXPECT_EQ(board->GetPromotionPawn(), nullptr);
    }
}

TEST(ChessBoardApplyMove, TakesADoubleStepOntoTheLastRowForADoubleStep) {
    const auto board = Lay(openPosition);
    ChessFigure* pawn = On(board.get(), "b2");
    board->ApplyMove(pawn, 1, 5);
    board->ApplyMove(pawn, 1, 7);
    EXPECT_EQ(board->GetDoubleStepPawn(), pawn);
    EXPECT_EQ(board->GetPromotionPawn(), nullptr);
}

TEST(ChessBoardApplyMove, LetsNoOtherFigureWaitOnTheLastRow) {
    const auto board = Lay(openPosition);
    board->ApplyMove(On(board.get(), "d1"), 3, 7);
    EXPECT_EQ(board->GetPromotionPawn(), nullptr);
}

TEST(ChessBoardApplyMove, CapturesWithAKingAsWithAnyFigure) {
    const auto board = Lay(openPosition);
    ChessFigure* victim = On(board.get(), "d5");
    board->ApplyMove(board->GetKing(Player::White), 3, 4);
    ASSERT_EQ(board->GetCaptured()->size(), 1u);
    EXPECT_EQ(board->GetCaptured()->back(), victim);
    EXPECT_FALSE(board->GetCaptured()->back()->IsAlive());
    EXPECT_EQ(Names(board->GetFigures(Player::Black)), "ra8 ke8 rh8 pa7");
    EXPECT_EQ(NameOf(On(board.get(), "d5")), "Kd5");
}

TEST(ChessBoardApplyMove, ListsTheCapturedInOrderOfCapture) {
    const auto board = Lay(openPosition);
    board->ApplyMove(On(board.get(), "h1"), 7, 7);
    board->ApplyMove(On(board.get(), "d5"), 4, 3);
    board->ApplyMove(On(board.get(), "a1"), 0, 6);
    EXPECT_EQ(Names(board->GetCaptured()), "rh8 Pe4 pa7");
    EXPECT_EQ(Names(board->GetFigures(Player::White)), "Ra7 Qd1 Ke1 Rh8 Pb2");
    EXPECT_EQ(Names(board->GetFigures(Player::Black)), "ra8 ke8 pe4");
}

TEST(ChessBoardApplyMove, MarksKingsAndRooksAsMoved) {
    const auto board = Lay(openPosition);
    board->ApplyMove(On(board.get(), "a1"), 1, 0);
    board->ApplyMove(On(board.get(), "e8"), 4, 6);
    EXPECT_TRUE(static_cast<Rook*>(On(board.get(), "b1"))->HasMoved());
    EXPECT_FALSE(static_cast<Rook*>(On(board.get(), "h1"))->HasMoved());
    EXPECT_TRUE(board->GetKing(Player::Black)->HasMoved());
    EXPECT_FALSE(board->GetKing(Player::White)->HasMoved());
}

TEST(ChessBoardApplyMove, FlipsTheToggleWhoeverMoves) {
    ChessBoard board(true);
    board.ApplyMove(On(&board, "e2"), 4, 3);
    EXPECT_EQ(board.GetCurrentPlayer(), Player::Black);
    board.ApplyMove(On(&board, "e4"), 4, 4);
    EXPECT_EQ(board.GetCurrentPlayer(), Player::White);
    board.ApplyMove(On(&board, "a7"), 0, 5);
    EXPECT_EQ(board.GetCurrentPlayer(), Player::Black);
}

TEST(ChessBoardApplyMove, ChangesNothingForATargetOffTheBoard) {
    ChessBoard board(true);
    board.ApplyMove(On(&board, "e2"), 4, 3);
    const std::string before = Snapshot(&board);
    EXPECT_EQ(Refusal([&board] { board.ApplyMove(On(&board, "a1"), 0, 8); }),
              "InvalidParameterException: Coordinate(s) are out of bound!");
    EXPECT_EQ(Snapshot(&board), before);
}

// RemoveFigure

TEST(ChessBoardRemoveFigure, TakesAFigureOffFieldAndList) {
    ChessBoard board(true);
    ChessFigure* queen = On(&board, "d1");
    board.RemoveFigure(queen);
    EXPECT_EQ(board.FieldAt(3, 0).GetElement(), nullptr);
    EXPECT_EQ(Names(board.GetFigures(Player::White)),
              "Ra1 Nb1 Bc1 Ke1 Bf1 Ng1 Rh1 Pa2 Pb2 Pc2 Pd2 Pe2 Pf2 Pg2 Ph2");
    EXPECT_TRUE(board.GetCaptured()->empty());
    EXPECT_TRUE(queen->IsAlive());
}

TEST(ChessBoardRemoveFigure, TellsFiguresApartByLooks) {
    ChessBoard board(true);
    Pawn twin(2, 6, true, Player::Black);
    ChessFigure* original = On(&board, "c7");
    board.RemoveFigure(&twin);
    EXPECT_EQ(board.FieldAt(2, 6).GetElement(), nullptr);
    for (const ChessFigure* figure : *board.GetFigures(Player::Black)) {
        EXPECT_NE(figure, original);
    }
    EXPECT_EQ(board.GetFigures(Player::Black)->size(), 15u);
}

TEST(ChessBoardRemoveFigure, ErasesOnlyTheFirstOfTwoAlike) {
    ChessBoard board(true);
    Pawn twin(2, 6, true, Player::Black);
    board.GetFigures(Player::Black)->push_back(&twin);
    board.RemoveFigure(&twin);
    EXPECT_EQ(board.GetFigures(Player::Black)->size(), 16u);
    EXPECT_EQ(board.GetFigures(Player::Black)->back(), &twin);
    board.GetFigures(Player::Black)->pop_back();
}

TEST(ChessBoardRemoveFigure, ChangesOnlyTheFieldForAFigureInNoList) {
    ChessBoard board(true);
    Rook stranger(2, 6, true, Player::Black);
    board.RemoveFigure(&stranger);
    EXPECT_EQ(board.FieldAt(2, 6).GetElement(), nullptr);
    EXPECT_EQ(board.GetFigures(Player::Black)->size(), 16u);
    EXPECT_EQ(board.GetFigures(Player::White)->size(), 16u);
}

// RestoreMove

TEST(ChessBoardRestoreMove, PutsBothFiguresBack) {
    const auto board = Lay(openPosition);
    ChessFigure* pawn = On(board.get(), "e4");
    ChessFigure* victim = On(board.get(), "d5");
    board->ApplyMove(pawn, 3, 4);
    board->RestoreMove(At("e4"), At("d5"), pawn, victim);
    EXPECT_EQ(Picture(board.get()), WithoutBlanks(openPosition));
    EXPECT_EQ(NameOf(pawn), "Pe4");
    EXPECT_TRUE(victim->IsAlive());
    EXPECT_TRUE(board->GetCaptured()->empty());
    EXPECT_EQ(Names(board->GetFigures(Player::White)), "Ra1 Qd1 Ke1 Rh1 Pb2 Pe4");
}

TEST(ChessBoardRestoreMove, MakesTheCapturedTheLastOfItsList) {
    const auto board = Lay(openPosition);
    ChessFigure* rook = On(board.get(), "a1");
    ChessFigure* victim = On(board.get(), "a8");
    ASSERT_EQ(Names(board->GetFigures(Player::Black)), "ra8 ke8 rh8 pa7 pd5");
    board->ApplyMove(rook, 0, 7);
    board->RestoreMove(At("a1"), At("a8"), rook, victim);
    EXPECT_EQ(Names(board->GetFigures(Player::Black)), "ke8 rh8 pa7 pd5 ra8");
    EXPECT_EQ(board->GetFigures(Player::Black)->back(), victim);
}

TEST(ChessBoardRestoreMove, EmptiesTheTargetWhereNothingWasTaken) {
    const auto board = Lay(openPosition);
    ChessFigure* queen = On(board.get(), "d1");
    board->ApplyMove(queen, 3, 3);
    board->RestoreMove(At("d1"), At("d4"), queen, nullptr);
    EXPECT_EQ(Picture(board.get()), WithoutBlanks(openPosition));
    EXPECT_EQ(board->FieldAt(3, 3).GetElement(), nullptr);
}

TEST(ChessBoardRestoreMove, LeavesAllElseAsTheMoveLeftIt) {
    const auto board = Lay(openPosition);
    ChessFigure* rook = On(board.get(), "a1");
    board->ApplyMove(rook, 1, 0);
    board->RestoreMove(At("a1"), At("b1"), rook, nullptr);
    EXPECT_TRUE(static_cast<Rook*>(rook)->HasMoved());
    EXPECT_EQ(board->GetCurrentPlayer(), Player::Black);

    ChessFigure* pawn = On(board.get(), "b2");
    board->ApplyMove(pawn, 1, 3);
    board->RestoreMove(At("b2"), At("b4"), pawn, nullptr);
    EXPECT_EQ(board->GetDoubleStepPawn(), pawn);
    EXPECT_EQ(board->GetCurrentPlayer(), Player::White);

    board->ApplyMove(pawn, 1, 7);
    board->RestoreMove(At("b2"), At("b8"), pawn, nullptr);
    EXPECT_EQ(board->GetPromotionPawn(), pawn);
    EXPECT_EQ(board->GetDoubleStepPawn(), nullptr);
}

TEST(ChessBoardRestoreMove, LeavesThePlaceOfTheCapturedAlone) {
    const auto board = Lay(openPosition);
    ChessFigure* pawn = On(board.get(), "e4");
    ChessFigure* passed = On(board.get(), "d5");
    board->RemoveFigure(passed);
    board->ApplyMove(pawn, 3, 5);
    board->RestoreMove(At("e4"), At("d6"), pawn, passed);
    EXPECT_EQ(FigureOn(board.get(), 3, 5), passed);
    EXPECT_EQ(FigureOn(board.get(), 3, 4), nullptr);
    EXPECT_EQ(NameOf(passed), "pd5");
}

TEST(ChessBoardRestoreMove, SparesCapturedFiguresThatLookDifferent) {
    const auto board = Lay(openPosition);
    ChessFigure* queen = On(board.get(), "d1");
    ChessFigure* passed = On(board.get(), "d5");
    board->ApplyMove(queen, 0, 6);
    ASSERT_EQ(Names(board->GetCaptured()), "pa7");
    board->RestoreMove(At("d1"), At("a7"), queen, passed);
    EXPECT_EQ(Names(board->GetCaptured()), "pa7");
}

TEST(ChessBoardUndoRecord, RestoresWhatTheRecordSays) {
    const auto board = Lay(openPosition);
    ChessFigure* pawn = On(board.get(), "e4");
    ChessFigure* victim = On(board.get(), "d5");
    board->ApplyMove(pawn, 3, 4);
    board->UndoRecord(ChessMoveRecord(1, At("e4"), At("d5"), pawn, victim, -1));
    EXPECT_EQ(Picture(board.get()), WithoutBlanks(openPosition));
    EXPECT_TRUE(victim->IsAlive());
}

// Promote

TEST(ChessBoardPromote, DoesNothingWhileNoPawnWaits) {
    const auto board = Lay(openPosition);
    const std::string before = Snapshot(board.get());
    board->Promote(FigureType::Queen);
    board->Promote(FigureType::Pawn);
    EXPECT_EQ(Snapshot(board.get()), before);
}

TEST(ChessBoardPromote, ReplacesThePawnByTheChosenFigure) {
    struct Row {
        FigureType type;
        const char* white;
        const char* black;
    };
    const Row rows[] = {
        {FigureType::Rook, "Rb8", "ra1"},
        {FigureType::Knight, "Nb8", "na1"},
        {FigureType::Bishop, "Bb8", "ba1"},
        {FigureType::Queen, "Qb8", "qa1"},
    };
    for (const Row& row : rows) {
        const auto board = Lay(openPosition);
        board->ApplyMove(On(board.get(), "b2"), 1, 7);
        board->Promote(row.type);
        EXPECT_EQ(NameOf(On(board.get(), "b8")), row.white);
        EXPECT_EQ(Names(board->GetFigures(Player::White)), "Ra1 Qd1 Ke1 Rh1 Pe4 " + std::string(row.white));
        EXPECT_EQ(board->GetPromotionPawn(), nullptr);
        EXPECT_TRUE(On(board.get(), "b8")->IsAlive());
        EXPECT_EQ(On(board.get(), "b8"), board->GetFigures(Player::White)->back());
        EXPECT_TRUE(board->GetCaptured()->empty());

        board->ApplyMove(On(board.get(), "a7"), 0, 0);
        board->Promote(row.type);
        EXPECT_EQ(NameOf(On(board.get(), "a1")), row.black);
        EXPECT_EQ(Names(board->GetFigures(Player::Black)), "ra8 ke8 rh8 pd5 " + std::string(row.black));
        EXPECT_EQ(Names(board->GetCaptured()), "Ra1");
    }
}

TEST(ChessBoardPromote, MakesARookThatHasNotMoved) {
    const auto board = Lay(openPosition);
    board->ApplyMove(On(board.get(), "b2"), 1, 7);
    board->Promote(FigureType::Rook);
    EXPECT_FALSE(static_cast<Rook*>(On(board.get(), "b8"))->HasMoved());
}

TEST(ChessBoardPromote, LosesThePawnToAWrongChoiceAndStillWaits) {
    for (const int type : {0, 5, 6, -1}) {
        const auto board = Lay(openPosition);
        ChessFigure* pawn = On(board.get(), "b2");
        board->ApplyMove(pawn, 1, 7);
        EXPECT_EQ(Refusal([&] { board->Promote(static_cast<FigureType>(type)); }),
                  "InvalidParameterException: A Pawn can only promote to a Queen, Rook, Knight or Bishop!");
        EXPECT_EQ(board->FieldAt(1, 7).GetElement(), nullptr) << type;
        EXPECT_EQ(Names(board->GetFigures(Player::White)), "Ra1 Qd1 Ke1 Rh1 Pe4") << type;
        EXPECT_EQ(board->GetPromotionPawn(), pawn) << type;

        board->Promote(FigureType::Knight);
        EXPECT_EQ(NameOf(On(board.get(), "b8")), "Nb8") << type;
        EXPECT_EQ(board->GetPromotionPawn(), nullptr) << type;
    }
}

TEST(ChessBoardPromote, LeavesTheToggleAlone) {
    const auto board = Lay(openPosition);
    board->ApplyMove(On(board.get(), "b2"), 1, 7);
    ASSERT_EQ(board->GetCurrentPlayer(), Player::Black);
    board->Promote(FigureType::Queen);
    EXPECT_EQ(board->GetCurrentPlayer(), Player::Black);
}

}  // namespace
}  // namespace tolvane

#include "rules/ChessGame.h"

#include <gtest/gtest.h>

#include <memory>

#include "rules/FigureOn.h"
#include "rules/King.h"
#include "rules/Position.h"
#include "rules/Rook.h"

namespace tolvane {
namespace {

constexpr const char* noFigure = "InvalidMoveException: There is no figure positioned on source-coordinate";
constexpr const char* kingIsCheck = "InvalidMoveException: The King is Check! MAIN";
constexpr const char* offTheBoard = "InvalidParameterException: Coordinate(s) are out of bound!";
constexpr const char* wrongPromotion =
    "InvalidParameterException: A Pawn can only promote to a Queen, Rook, Knight or Bishop!";

std::string Field(Coordinate* answered) {
    const std::unique_ptr<Coordinate> place(answered);
    return place == nullptr ? "-" : NameOf(place->GetX(), place->GetY());
}

std::string Refused(ChessGame& game, const char* source, const char* target) {
    return Refusal([&] { Play(game, source, target); });
}

void ExpectQuiet(const MoveResult& result) {
    EXPECT_EQ(result.CheckedPlayer(), Player::NoPlayer);
    EXPECT_EQ(result.MatedPlayer(), Player::NoPlayer);
    EXPECT_EQ(Field(result.CheckedKingField()), "-");
    ASSERT_NE(result.attackers, nullptr);
    EXPECT_TRUE(result.attackers->empty());
    EXPECT_EQ(result.mateList, nullptr);
}

TEST(ChessGame, PlaysATurn) {
    ChessGame game;
    EXPECT_EQ(Reachable(game, "e2"), "e3 e4");
    const Coordinate source(4, 1);
    const Coordinate target(4, 3);
    const MoveResult result = game.PlayMove(&source, &target);
    ExpectQuiet(result);
    EXPECT_EQ(Field(result.CapturedField()), "-");
    EXPECT_EQ(Field(result.PromotionField()), "-");
    EXPECT_EQ(Field(result.CastlingRookField()), "-");
    EXPECT_EQ(Field(result.DoubleStepField()), "e4");
    EXPECT_EQ(game.GetBoardView().FigureAt(4, 3), ChessGameFigure::WhitePawn);
}

TEST(ChessGame, StartsWithOneEntryForTheStartPosition) {
    const ChessGame game;
    ASSERT_EQ(game.GetHistory().size(), 1u);
    const ChessMoveRecord& entry = game.GetHistory().front();
    EXPECT_EQ(entry.GetNumber(), 0);
    EXPECT_EQ(entry.GetUndoneNumber(), -1);
    EXPECT_EQ(entry.GetFigure(), nullptr);
    EXPECT_EQ(entry.GetCaptured(), nullptr);
    EXPECT_EQ(entry.GetSource()->Compare(Coordinate(0, 0)), 0);
    EXPECT_EQ(entry.GetTarget()->Compare(Coordinate(0, 0)), 0);
}

TEST(ChessGame, NumbersItsMovesFromOne) {
    ChessGame game;
    PlayAll(game, "e2-e4 d7-d5");
    ASSERT_EQ(game.GetHistory().size(), 3u);
    EXPECT_EQ(game.GetHistory()[1].GetNumber(), 1);
    EXPECT_EQ(game.GetHistory()[2].GetNumber(), 2);
    PlayAll(game, "e4-d5");
    const ChessMoveRecord& capture = game.GetHistory()[3];
    EXPECT_EQ(capture.GetNumber(), 3);
    EXPECT_EQ(capture.GetUndoneNumber(), -1);
    EXPECT_EQ(NameOf(capture.GetSource()->GetX(), capture.GetSource()->GetY()), "e4");
    EXPECT_EQ(NameOf(capture.GetTarget()->GetX(), capture.GetTarget()->GetY()), "d5");
    EXPECT_EQ(NameOf(capture.GetFigure()), "Pd5");
    EXPECT_EQ(NameOf(capture.GetCaptured()), "pd5");
    EXPECT_EQ(capture.GetPlayer(), Player::White);
    EXPECT_EQ(capture.GetType(), FigureType::Pawn);
}

TEST(ChessGame, DoesNotAskWhoseTurnItIs) {
    ChessGame game;
    ExpectQuiet(Play(game, "e7", "e5"));
    ExpectQuiet(Play(game, "e5", "e4"));
    ExpectQuiet(Play(game, "a2", "a3"));
    ExpectQuiet(Play(game, "a3", "a4"));
}

TEST(ChessGame, TellsOfACapture) {
    ChessGame game;
    PlayAll(game, "e2-e4 d7-d5");
    const MoveResult result = Play(game, "e4", "d5");
    ExpectQuiet(result);
    EXPECT_EQ(Field(result.CapturedField()), "d5");
    EXPECT_EQ(NameOf(result.captured), "pd5");
    EXPECT_EQ(*game.GetBoardView().CapturedCodes(), std::vector{ChessGameFigure::BlackPawn});
}

TEST(ChessGame, RefusesAnEmptySource) {
    ChessGame game;
    EXPECT_EQ(Refused(game, "e4", "e5"), noFigure);
    EXPECT_EQ(Refusal([&] { game.ReachableFields(4, 3); }), noFigure);
}

TEST(ChessGame, RefusesASourceOffTheBoard) {
    ChessGame game;
    const Coordinate target(4, 3);
    for (const Coordinate& source : {Coordinate(8, 0), Coordinate(0, 8), Coordinate(-1, 0)}) {
        EXPECT_EQ(Refusal([&] { game.PlayMove(&source, &target); }), offTheBoard);
        EXPECT_EQ(Refusal([&] { game.ReachableFields(source.GetX(), source.GetY()); }), offTheBoard);
    }
}

TEST(ChessGame, RefusesATargetOffTheBoard) {
    struct Row {
        const char* source;
        int x;
        int y;
        const char* refusal;
    };
    const Row rows[] = {
        {"g1", 7, -2, "InvalidParameterException: Coordinates are out of bound!"},
        {"d1", 9, 0, "InvalidParameterException: Coordinates are out of bound!"},
        {"e2", 4, 9, "InvalidParameterException: Coordinates are out of bound!"},
        {"h1", 8, 0, offTheBoard},
        {"e1", 4, -1, offTheBoard},
    };
    for (const Row& row : rows) {
        ChessGame game;
        const Coordinate source = At(row.source);
        const Coordinate target(row.x, row.y);
        EXPECT_EQ(Refusal([&] { game.PlayMove(&source, &target); }), row.refusal) << row.source;
        EXPECT_EQ(game.GetHistory().size(), 1u);
    }
}

TEST(ChessGame, PassesOnWhatTheRulesThrow) {
    struct Row {
        const char* source;
        const char* target;
        const char* refusal;
    };
    const Row rows[] = {
        {"f1", "f3", "InvalidMoveTypeException: This is not a DIAGONAL move!"},
        {"f1", "d3", "InvalidMoveException: This Move is not Allowed! DIAGONAL +1+"},
        {"f1", "e2", "InvalidMoveException: This Move is not Allowed! DIAGONAL 2"},
        {"a1", "b3", "InvalidMoveException: This Move is not Allowed!"},
        {"a1", "a4", "InvalidMoveException: This Move is not Allowed! CHESSMOVE_V_A"},
        {"a1", "c1", "InvalidMoveException: This Move is not Allowed! CHESSMOVE_H_A"},
        {"d1", "c3", "InvalidMoveException: This Move is not Allowed!"},
        {"g1", "g3", "InvalidMoveException: This Move is not Allowed!"},
        {"g1", "e2", "InvalidMoveException: This Move is not Allowed!"},
        {"e1", "e3", "InvalidMoveException: The king can only move 1 field in each direction!"},
        {"e1", "e2", "InvalidMoveException: This Move is not Allowed!"},
        {"e1", "g1", "InvalidMoveException: The fields between king and rook are not free!"},
        {"e2", "e1", "InvalidMoveException: This Move is not Allowed! PAWN-A"},
        {"e2", "d3", "InvalidMoveException: This Move is not Allowed! PAWN-C"},
    };
    for (const Row& row : rows) {
        LaidGame laid(R"(
            r n b q k b n r
            p p p p p p p p
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            P P P P P P P P
            R N B Q K B N R
        )");
        const std::string before = Snapshot(laid.board);
        EXPECT_EQ(Refused(laid.game, row.source, row.target), row.refusal) << row.source << row.target;
        EXPECT_EQ(Snapshot(laid.board), before) << row.source << row.target;
        EXPECT_EQ(laid.game.GetHistory().size(), 1u);
    }
}

TEST(ChessGame, RefusesAKingsStepOntoAnAttackedField) {
    LaidGame laid(R"(
        k . . r . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . K . . .
    )");
    EXPECT_EQ(Refused(laid.game, "e1", "d1"), "KingIsCheckException: The field is not check free!");
    EXPECT_FALSE(laid.board->GetKing(Player::White)->HasMoved());
}

TEST(ChessGame, OffersWhatItMayLaterRefuse) {
    LaidGame laid(R"(
        k . . . r . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . N . . .
        . . . . K . . .
    )");
    EXPECT_EQ(Reachable(laid.game, "e2"), "c1 c3 d4 f4 g1 g3");
    EXPECT_EQ(Refused(laid.game, "e2", "g3"), kingIsCheck);
}

// Check and mate

TEST(ChessGame, TellsOfACheckThatCanBeAnswered) {
    LaidGame laid(R"(
        k . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . K . . R
    )");
    const MoveResult result = Play(laid.game, "h1", "h8");
    EXPECT_EQ(result.CheckedPlayer(), Player::Black);
    EXPECT_EQ(result.MatedPlayer(), Player::NoPlayer);
    EXPECT_EQ(Field(result.CheckedKingField()), "a8");
    EXPECT_EQ(Names(result.attackers), "Rh8");
    EXPECT_EQ(result.mateList, nullptr);
    EXPECT_EQ(laid.board->GetCheckedKing(), laid.board->GetKing(Player::Black));
    EXPECT_EQ(laid.board->GetMatedKing(), nullptr);

    ExpectQuiet(Play(laid.game, "a8", "a7"));
    EXPECT_EQ(laid.board->GetCheckedKing(), nullptr);
}

TEST(ChessGame, TellsOfAMate) {
    LaidGame laid(R"(
        . . . . . . . k
        . R . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        R . . . K . . .
    )");
    const MoveResult result = Play(laid.game, "a1", "a8");
    EXPECT_EQ(result.CheckedPlayer(), Player::Black);
    EXPECT_EQ(result.MatedPlayer(), Player::Black);
    EXPECT_EQ(Field(result.CheckedKingField()), "h8");
    EXPECT_EQ(Names(result.attackers), "Ra8");
    EXPECT_EQ(Names(result.mateList), "Rb7 Ra8 Rb7");
    EXPECT_EQ(laid.board->GetMatedKing(), laid.board->GetKing(Player::Black));
}

TEST(ChessGame, GoesOnAfterAMate) {
    LaidGame laid(R"(
        . . . . . . . k
        . R . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        R . . . K . . .
    )");
    Play(laid.game, "a1", "a8");
    EXPECT_EQ(Refused(laid.game, "h8", "h7"), "KingIsCheckException: The field is not check free!");
    const MoveResult result = Play(laid.game, "b7", "b6");
    EXPECT_EQ(result.CheckedPlayer(), Player::Black);
    EXPECT_EQ(result.MatedPlayer(), Player::NoPlayer);
    EXPECT_EQ(laid.board->GetMatedKing(), nullptr);
    ExpectQuiet(Play(laid.game, "h8", "h7"));
}

TEST(ChessGame, KeepsTheListsOfEarlierResults) {
    LaidGame laid(R"(
        . . . . . . . k
        . R . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        R . . . K . . .
    )");
    const MoveResult mate = Play(laid.game, "a1", "a8");
    Play(laid.game, "b7", "b6");
    Play(laid.game, "h8", "h7");
    EXPECT_EQ(Names(mate.attackers), "Ra8");
    EXPECT_EQ(mate.MatedPlayer(), Player::Black);
}

TEST(ChessGame, ReportsNoSmotheredMate) {
    LaidGame laid(R"(
        . . . . . . r k
        . . . . . . p p
        . . . . . . . .
        . . . . N . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . K . . .
    )");
    const MoveResult result = Play(laid.game, "e5", "f7");
    EXPECT_EQ(result.CheckedPlayer(), Player::Black);
    EXPECT_EQ(result.MatedPlayer(), Player::NoPlayer);
    ASSERT_NE(result.mateList, nullptr);
    EXPECT_TRUE(result.mateList->empty());
    EXPECT_EQ(laid.board->GetMatedKing(), nullptr);
    EXPECT_EQ(Refused(laid.game, "g8", "f8"), kingIsCheck);
    EXPECT_EQ(Refused(laid.game, "h7", "h6"), kingIsCheck);
    EXPECT_EQ(Refused(laid.game, "g7", "g5"), kingIsCheck);
}

TEST(ChessGame, ReportsNoMateWhileTheFieldBehindTheKingLooksFree) {
    LaidGame laid(R"(
        . . . . . k . .
        . R . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        R . . . K . . .
    )");
    const MoveResult result = Play(laid.game, "a1", "a8");
    EXPECT_EQ(result.CheckedPlayer(), Player::Black);
    EXPECT_EQ(result.MatedPlayer(), Player::NoPlayer);
    EXPECT_EQ(Reachable(laid.game, "f8"), "g8");
    EXPECT_EQ(Refused(laid.game, "f8", "g8"), kingIsCheck);
}

TEST(ChessGame, SaysNothingOfAStalemate) {
    LaidGame laid(R"(
        k . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . Q . K . . .
    )");
    ExpectQuiet(Play(laid.game, "c1", "c7"));
    EXPECT_EQ(laid.board->GetCheckedKing(), nullptr);
    EXPECT_EQ(laid.board->GetMatedKing(), nullptr);
    EXPECT_EQ(Reachable(laid.game, "a8"), "");
}

TEST(ChessGame, PlaysOnWhenAKingIsTaken) {
    LaidGame laid(R"(
        k . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        R . . . K . . .
    )");
    const MoveResult result = Play(laid.game, "a1", "a8");
    ExpectQuiet(result);
    EXPECT_EQ(NameOf(result.captured), "ka8");
    ExpectQuiet(Play(laid.game, "e1", "e2"));
    // The king that is gone is still asked about, where it stood last.
    EXPECT_EQ(Play(laid.game, "a8", "a1").CheckedPlayer(), Player::Black);
}

// En passant

TEST(ChessGame, PlaysEnPassant) {
    ChessGame game;
    PlayAll(game, "e2-e4 a7-a6 e4-e5 d7-d5");
    EXPECT_EQ(Reachable(game, "e5"), "d6 e6");
    const MoveResult result = Play(game, "e5", "d6");
    EXPECT_EQ(Field(result.CapturedField()), "d5");
    EXPECT_EQ(NameOf(result.captured), "pd5");
    EXPECT_TRUE(result.captured->IsAlive());
    EXPECT_TRUE(game.GetBoardView().CapturedCodes()->empty());
    EXPECT_EQ(game.GetBoardView().FigureAt(3, 4), ChessGameFigure::NoFigure);
    EXPECT_EQ(game.GetBoardView().FigureAt(3, 5), ChessGameFigure::WhitePawn);
    EXPECT_EQ(NameOf(game.GetHistory().back().GetCaptured()), "pd5");
}

TEST(ChessGame, PlaysEnPassantForOneMoveOnly) {
    ChessGame game;
    PlayAll(game, "e2-e4 a7-a6 e4-e5 d7-d5 h2-h3 h7-h6");
    EXPECT_EQ(Reachable(game, "e5"), "e6");
    EXPECT_EQ(Refused(game, "e5", "d6"), "InvalidMoveException: This Move is not Allowed! PAWN-C");
}

TEST(ChessGame, PlaysTheLenientEnPassantAsWell) {
    ChessGame game;
    PlayAll(game, "h2-h4 a7-a6 h4-h5 d7-d5");
    EXPECT_EQ(Reachable(game, "h5"), "h6");
    EXPECT_EQ(Refused(game, "h5", "g6"), "nothing");
    EXPECT_EQ(game.GetBoardView().FigureAt(3, 4), ChessGameFigure::NoFigure);
    EXPECT_EQ(game.GetBoardView().FigureAt(6, 5), ChessGameFigure::WhitePawn);
}

// Castling

TEST(ChessGame, TellsOfACastling) {
    LaidGame laid(R"(
        r . . . k . . r
        p . . . . . . p
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        P . . . . . . P
        R . . . K . . R
    )");
    const MoveResult white = Play(laid.game, "e1", "g1");
    EXPECT_EQ(Field(white.CastlingRookField()), "f1");
    EXPECT_EQ(Field(white.CapturedField()), "-");
    const MoveResult quiet = Play(laid.game, "a7", "a6");
    EXPECT_EQ(Field(quiet.CastlingRookField()), "-");
    EXPECT_EQ(NameOf(laid.game.GetHistory()[1].GetFigure()), "Kg1");
    EXPECT_EQ(laid.game.GetHistory().size(), 3u);
}

// Promotion

constexpr const char* beforePromotion = R"(
    . . . . . . . k
    P R . . . . . .
    . . . . . . . .
    . . . . . . . .
    . . . . . . . .
    . . . . . . . .
    . . . . . . . .
    . . . . K . . .
)";

TEST(ChessGamePromotion, WaitsForTheChoice) {
    LaidGame laid(beforePromotion);
    const MoveResult step = Play(laid.game, "a7", "a8");
    ExpectQuiet(step);
    EXPECT_EQ(Field(step.PromotionField()), "a8");
    laid.board->SetCheckedKing(laid.board->GetKing(Player::White));
    laid.board->SetMatedKing(laid.board->GetKing(Player::White));
    const MoveResult chosen = laid.game.PromotePawn(FigureType::Knight);
    ExpectQuiet(chosen);
    EXPECT_EQ(laid.board->GetMatedKing(), nullptr);
    EXPECT_EQ(Field(chosen.PromotionField()), "-");
    EXPECT_EQ(Field(chosen.CapturedField()), "-");
    EXPECT_EQ(Field(chosen.CastlingRookField()), "-");
    EXPECT_EQ(Field(chosen.DoubleStepField()), "-");
    EXPECT_EQ(laid.game.GetBoardView().FigureAt(0, 7), ChessGameFigure::WhiteKnight);
    EXPECT_EQ(laid.game.GetHistory().size(), 2u) << "a promotion is no move of its own";
}

TEST(ChessGamePromotion, CanGiveCheckAndMate) {
    struct Row {
        FigureType type;
        Player checked;
        Player mated;
    };
    const Row rows[] = {
        {FigureType::Queen, Player::Black, Player::Black},
        {FigureType::Rook, Player::Black, Player::Black},
        {FigureType::Bishop, Player::NoPlayer, Player::NoPlayer},
        {FigureType::Knight, Player::NoPlayer, Player::NoPlayer},
    };
    for (const Row& row : rows) {
        LaidGame laid(beforePromotion);
        Play(laid.game, "a7", "a8");
        const MoveResult result = laid.game.PromotePawn(row.type);
        EXPECT_EQ(result.CheckedPlayer(), row.checked);
        EXPECT_EQ(result.MatedPlayer(), row.mated);
        EXPECT_EQ(Field(result.CheckedKingField()), row.checked == Player::Black ? "h8" : "-");
        EXPECT_EQ(Field(result.CapturedField()), "-");
        EXPECT_EQ(laid.board->GetMatedKing() != nullptr, row.mated == Player::Black);
    }
}

TEST(ChessGamePromotion, GivesCheckThatCanBeAnswered) {
    LaidGame laid(R"(
        . . . . . . . .
        . . . . . . . k
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . p . . . . . .
        R . . . K . . .
    )");
    const MoveResult capture = Play(laid.game, "b2", "a1");
    EXPECT_EQ(Field(capture.CapturedField()), "a1");
    EXPECT_EQ(Field(capture.PromotionField()), "a1");
    EXPECT_EQ(Names(laid.board->GetCaptured()), "Ra1");
    const MoveResult result = laid.game.PromotePawn(FigureType::Queen);
    EXPECT_EQ(result.CheckedPlayer(), Player::White);
    EXPECT_EQ(result.MatedPlayer(), Player::NoPlayer);
    EXPECT_EQ(Field(result.CheckedKingField()), "e1");
    EXPECT_EQ(Field(result.CapturedField()), "-");
    EXPECT_EQ(Names(result.attackers), "qa1");
}

TEST(ChessGamePromotion, LosesThePawnToAWrongChoice) {
    for (const FigureType type : {FigureType::Pawn, FigureType::King}) {
        LaidGame laid(beforePromotion);
        Play(laid.game, "a7", "a8");
        laid.board->SetCheckedKing(laid.board->GetKing(Player::White));
        EXPECT_EQ(Refusal([&] { laid.game.PromotePawn(type); }), wrongPromotion);
        EXPECT_EQ(laid.game.GetBoardView().FigureAt(0, 7), ChessGameFigure::NoFigure);
        EXPECT_EQ(Names(laid.board->GetFigures(Player::White)), "Ke1 Rb7");
        EXPECT_EQ(NameOf(laid.board->GetPromotionPawn()), "Pa8");
        EXPECT_NE(laid.board->GetCheckedKing(), nullptr) << "the evaluation has not begun";
        EXPECT_EQ(laid.game.PromotePawn(FigureType::Queen).MatedPlayer(), Player::Black);
    }
}

TEST(ChessGamePromotion, DoesNotLookAtTheMoversOwnKing) {
    LaidGame laid(beforePromotion);
    Play(laid.game, "a7", "a8");
    laid.board->RestoreMove(At("h7"), At("e1"), laid.board->GetKing(Player::White), nullptr);
    EXPECT_EQ(laid.game.PromotePawn(FigureType::Queen).CheckedPlayer(), Player::Black);
    EXPECT_EQ(NameOf(On(laid.board, "a8")), "Qa8");
}

// What a rejected move leaves behind

TEST(ChessGameRejection, OfAnEmptySourceForgetsOnlyTheCastlingRook) {
    LaidGame laid(R"(
        r . . . k . . r
        p . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . P
        R . . . K . . R
    )");
    Play(laid.game, "e1", "g1");
    Play(laid.game, "a7", "a5");
    laid.board->SetCheckedKing(laid.board->GetKing(Player::Black));
    laid.board->SetMatedKing(laid.board->GetKing(Player::White));
    const std::string without = Snapshot(laid.board);
    laid.board->SetCastlingRook(On(laid.board, "f1"));
    ASSERT_NE(Snapshot(laid.board), without);
    EXPECT_EQ(Refused(laid.game, "d4", "d5"), noFigure);
    EXPECT_EQ(Snapshot(laid.board), without);
    EXPECT_EQ(laid.game.GetHistory().size(), 3u);

    laid.board->SetCastlingRook(On(laid.board, "f1"));
    const Coordinate off(9, 9);
    EXPECT_EQ(Refusal([&] { laid.game.PlayMove(&off, &off); }), offTheBoard);
    EXPECT_EQ(Snapshot(laid.board), without);
}

TEST(ChessGameRejection, ByTheRuleForgetsOnlyTheCastlingRook) {
    LaidGame laid(R"(
        r . . . k . . r
        p . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . P . . . . . P
        R . . . K . . R
    )");
    Play(laid.game, "a7", "a5");
    laid.board->SetCheckedKing(laid.board->GetKing(Player::Black));
    laid.board->SetMatedKing(laid.board->GetKing(Player::White));
    const std::string without = Snapshot(laid.board);
    for (const auto& [source, target] : {std::pair("a1", "b3"), {"e1", "e3"}, {"b2", "c3"}, {"e8", "c6"}}) {
        laid.board->SetCastlingRook(On(laid.board, "h1"));
        EXPECT_NE(Refused(laid.game, source, target), "nothing");
        EXPECT_EQ(Snapshot(laid.board), without) << source << target;
        EXPECT_EQ(laid.game.GetHistory().size(), 2u);
    }
}

TEST(ChessGameRejection, ByTheRuleKeepsAWaitingPawn) {
    LaidGame laid(beforePromotion);
    Play(laid.game, "a7", "a8");
    const std::string before = Snapshot(laid.board);
    EXPECT_NE(Refused(laid.game, "b7", "c8"), "nothing");
    EXPECT_EQ(Snapshot(laid.board), before);
    EXPECT_NE(laid.board->GetPromotionPawn(), nullptr);
}

TEST(ChessGameRejection, OfAPinnedFigureTakesTheFigureBackAndNothingElse) {
    LaidGame laid(R"(
        k . . . r . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . R . . .
        . . . . K . . .
    )");
    const std::string position = Picture(laid.board);
    laid.board->SetCheckedKing(laid.board->GetKing(Player::Black));
    laid.board->SetMatedKing(laid.board->GetKing(Player::Black));
    laid.board->SetCastlingRook(On(laid.board, "e8"));
    EXPECT_EQ(Refused(laid.game, "e2", "c2"), kingIsCheck);
    EXPECT_EQ(Snapshot(laid.board), position +
                                        "white: Ke1 Re2\n"
                                        "black: ka8 re8\n"
                                        "captured: \n"
                                        "double step: -\n"
                                        "promotion: -\n"
                                        "checked: -\n"
                                        "mated: -\n"
                                        "castling: -\n"
                                        "toggle: 1\n"
                                        "moved: Re2\n");
    EXPECT_EQ(laid.game.GetHistory().size(), 1u);
}

TEST(ChessGameRejection, OfACaptureBringsTheCapturedBackAsTheLastOfItsList) {
    LaidGame laid(R"(
        k . . . r . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . n . . R . . b
        . . . . K . . .
    )");
    const std::string position = Picture(laid.board);
    ASSERT_EQ(Names(laid.board->GetFigures(Player::Black)), "ka8 re8 nb2 bh2");
    EXPECT_EQ(Refused(laid.game, "e2", "b2"), kingIsCheck);
    EXPECT_EQ(Picture(laid.board), position);
    EXPECT_TRUE(laid.board->GetCaptured()->empty());
    EXPECT_TRUE(On(laid.board, "b2")->IsAlive());
    EXPECT_EQ(Names(laid.board->GetFigures(Player::Black)), "ka8 re8 bh2 nb2");
    EXPECT_EQ(laid.board->GetFigures(Player::Black)->back(), On(laid.board, "b2"));
}

TEST(ChessGameRejection, LeavesEarlierCapturesAlone) {
    LaidGame laid(R"(
        k . . . r . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        p n . . R . . .
        R . . . K . . .
    )");
    Play(laid.game, "a1", "a2");
    ASSERT_EQ(Names(laid.board->GetCaptured()), "pa2");
    EXPECT_EQ(Refused(laid.game, "e2", "b2"), kingIsCheck);
    EXPECT_EQ(Names(laid.board->GetCaptured()), "pa2");
}

TEST(ChessGameRejection, OfAKingThatTakesAGuardedFigureCostsItTheCastling) {
    LaidGame laid(R"(
        k . . r . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . q . . . .
        R . . . K . . R
    )");
    ChessFigure* queen = On(laid.board, "d2");
    const std::string reachable = Reachable(laid.game, "e1");
    EXPECT_NE(reachable.find("d2"), std::string::npos) << reachable;
    EXPECT_EQ(Refused(laid.game, "e1", "d2"), kingIsCheck);
    EXPECT_EQ(On(laid.board, "d2"), queen);
    EXPECT_EQ(NameOf(On(laid.board, "e1")), "Ke1");
    EXPECT_TRUE(laid.board->GetKing(Player::White)->HasMoved());

    laid.board->RemoveFigure(queen);
    laid.board->RemoveFigure(On(laid.board, "d8"));
    EXPECT_EQ(Refused(laid.game, "e1", "g1"),
              "InvalidMoveException: The king can only move 1 field in each direction!");
}

TEST(ChessGameRejection, OfARookCostsItTheCastling) {
    LaidGame laid(R"(
        k . . . r . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        R . . . K . . R
    )");
    EXPECT_EQ(Refused(laid.game, "h1", "h5"), kingIsCheck);
    EXPECT_EQ(NameOf(On(laid.board, "h1")), "Rh1");
    laid.board->RemoveFigure(On(laid.board, "e8"));
    EXPECT_EQ(Refused(laid.game, "e1", "g1"), "InvalidMoveException: The Rook has already been moved! B");
    EXPECT_EQ(Refused(laid.game, "e1", "c1"), "nothing");
}

TEST(ChessGameRejection, OfADoubleStepLeavesTheCandidate) {
    LaidGame laid(R"(
        . . . . . . . k
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . p . . . . .
        . . . . . . . .
        K P . . . . . r
        . . . . . . . .
    )");
    ChessFigure* pawn = On(laid.board, "b2");
    EXPECT_EQ(Refused(laid.game, "b2", "b4"), kingIsCheck);
    EXPECT_EQ(laid.board->GetDoubleStepPawn(), pawn);
    EXPECT_EQ(NameOf(pawn), "Pb2");
    EXPECT_EQ(laid.board->GetCurrentPlayer(), Player::Black);

    // The candidate that never moved can be taken en passant, from wherever the rule asks.
    EXPECT_EQ(Reachable(laid.game, "c4"), "b1 c3");
    const MoveResult result = Play(laid.game, "c4", "b3");
    EXPECT_EQ(Field(result.CapturedField()), "b2");
    EXPECT_EQ(laid.board->GetDoubleStepPawn(), nullptr);
    EXPECT_EQ(Names(laid.board->GetFigures(Player::White)), "Ka2");
    EXPECT_EQ(result.CheckedPlayer(), Player::White);
}

TEST(ChessGameRejection, OfAStepToTheLastRowLeavesThePawnWaiting) {
    LaidGame laid(R"(
        . . . . . . . k
        K P . . . . . r
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
    )");
    ChessFigure* pawn = On(laid.board, "b7");
    EXPECT_EQ(Refused(laid.game, "b7", "b8"), kingIsCheck);
    EXPECT_EQ(laid.board->GetPromotionPawn(), pawn);
    EXPECT_EQ(NameOf(pawn), "Pb7");
    EXPECT_EQ(Field(Play(laid.game, "a7", "a6").PromotionField()), "-");
}

TEST(ChessGameRejection, OfAnEnPassantLandsTheVictimOnTheTarget) {
    LaidGame laid(R"(
        . . . . r . . k
        . . . p . . . .
        . . . . . . . .
        . . . . P . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . K . . .
    )");
    ChessFigure* victim = On(laid.board, "d7");
    Play(laid.game, "d7", "d5");
    EXPECT_EQ(Refused(laid.game, "e5", "d6"), kingIsCheck);
    EXPECT_EQ(Picture(laid.board), WithoutBlanks(R"(
        . . . . r . . k
        . . . . . . . .
        . . . p . . . .
        . . . . P . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . K . . .
    )"));
    EXPECT_EQ(FigureOn(laid.board, 3, 5), victim);
    EXPECT_EQ(NameOf(victim), "pd5");
    EXPECT_TRUE(victim->IsAlive());
    EXPECT_EQ(Names(laid.board->GetFigures(Player::Black)), "re8 kh8 pd5");
    EXPECT_EQ(laid.board->GetDoubleStepPawn(), nullptr);
    EXPECT_TRUE(laid.board->GetCaptured()->empty());
}

TEST(ChessGameRejection, OfACastlingWouldLeaveTheRookWhereItWent) {
    LaidGame laid(R"(
        k . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . K . . R
    )");
    ChessFigure* king = On(laid.board, "e1");
    const MoveResult result = Play(laid.game, "e1", "g1");
    laid.board->RestoreMove(At("e1"), At("g1"), king, result.captured);
    EXPECT_EQ(Picture(laid.board).substr(7 * 9, 8), "....KR..");
    EXPECT_EQ(NameOf(laid.board->GetCastlingRook()), "Rf1");
    EXPECT_TRUE(laid.board->GetKing(Player::White)->HasMoved());
}

// History

TEST(ChessGameUndoMove, TakesMovesBackOneByOne) {
    ChessGame game;
    PlayAll(game, "e2-e4 d7-d5 e4-d5");
    game.UndoMove();
    EXPECT_EQ(game.GetBoardView().FigureAt(4, 3), ChessGameFigure::WhitePawn);
    EXPECT_EQ(game.GetBoardView().FigureAt(3, 4), ChessGameFigure::BlackPawn);
    EXPECT_TRUE(game.GetBoardView().CapturedCodes()->empty());
    ASSERT_EQ(game.GetHistory().size(), 5u);
    EXPECT_EQ(game.GetHistory()[4].GetNumber(), 4);
    EXPECT_EQ(game.GetHistory()[4].GetUndoneNumber(), 3);
    EXPECT_EQ(game.GetHistory()[4].GetFigure(), nullptr);
    EXPECT_EQ(game.GetHistory()[4].GetCaptured(), nullptr);
    EXPECT_EQ(game.GetHistory()[4].GetSource()->Compare(Coordinate(0, 0)), 0);
    EXPECT_EQ(game.GetHistory()[4].GetTarget()->Compare(Coordinate(0, 0)), 0);

    game.UndoMove();
    EXPECT_EQ(game.GetBoardView().FigureAt(3, 6), ChessGameFigure::BlackPawn);
    EXPECT_EQ(game.GetBoardView().FigureAt(3, 4), ChessGameFigure::NoFigure);
    EXPECT_EQ(game.GetHistory().back().GetUndoneNumber(), 2);

    game.UndoMove();
    EXPECT_EQ(game.GetBoardView().FigureAt(4, 1), ChessGameFigure::WhitePawn);
    EXPECT_EQ(game.GetHistory().back().GetUndoneNumber(), 1);
    EXPECT_EQ(game.GetHistory().back().GetNumber(), 6);

    game.UndoMove();
    EXPECT_EQ(game.GetHistory().size(), 7u) << "the first move has been undone: there is nothing left";
}

TEST(ChessGameUndoMove, HasNothingToUndoAtTheStart) {
    LaidGame laid(beforePromotion);
    const std::string before = Snapshot(laid.board);
    laid.game.UndoMove();
    EXPECT_EQ(Snapshot(laid.board), before);
    EXPECT_EQ(laid.game.GetHistory().size(), 1u);
}

TEST(ChessGameUndoMove, UndoesAMoveThatFollowsAnUndoneOne) {
    ChessGame game;
    PlayAll(game, "e2-e4 d7-d5");
    game.UndoMove();  // entry 3 undoes 2
    PlayAll(game, "c7-c5");
    ASSERT_EQ(game.GetHistory().back().GetNumber(), 4);
    game.UndoMove();
    EXPECT_EQ(game.GetHistory().back().GetUndoneNumber(), 4);
    EXPECT_EQ(game.GetBoardView().FigureAt(2, 6), ChessGameFigure::BlackPawn);
    game.UndoMove();  // entry 3 points on to entry 1
    EXPECT_EQ(game.GetHistory().back().GetUndoneNumber(), 1);
    EXPECT_EQ(game.GetBoardView().FigureAt(4, 1), ChessGameFigure::WhitePawn);
}

TEST(ChessGameUndoMove, StopsAtTheStartBehindANewFirstMove) {
    ChessGame game;
    PlayAll(game, "e2-e4");
    game.UndoMove();
    PlayAll(game, "d2-d4");
    game.UndoMove();
    ASSERT_EQ(game.GetHistory().back().GetUndoneNumber(), 3);
    const std::size_t entries = game.GetHistory().size();
    game.UndoMove();
    EXPECT_EQ(game.GetHistory().size(), entries);
    EXPECT_EQ(game.GetBoardView().FigureAt(0, 0), ChessGameFigure::WhiteRook);
}

TEST(ChessGameUndoMove, LeavesMovedFlagsAlone) {
    LaidGame laid(R"(
        k . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        R . . . K . . R
    )");
    Play(laid.game, "e1", "e2");
    laid.game.UndoMove();
    EXPECT_EQ(NameOf(On(laid.board, "e1")), "Ke1");
    EXPECT_EQ(Refused(laid.game, "e1", "g1"),
              "InvalidMoveException: The king can only move 1 field in each direction!");
}

TEST(ChessGameUndoMove, CanPointAtAPromotedPawn) {
    LaidGame laid(beforePromotion);
    Play(laid.game, "a7", "a8");
    laid.game.PromotePawn(FigureType::Queen);
    laid.game.UndoMove();
    EXPECT_EQ(NameOf(On(laid.board, "a7")), "Pa7");
    EXPECT_EQ(FigureOn(laid.board, 0, 7), nullptr);
}

TEST(ChessGameUndoMove, LeavesAnEntryAloneThatLeadsNowhere) {
    for (const int undone : {0, -2, 7}) {
        LaidGame laid(beforePromotion);
        Play(laid.game, "a7", "a8");
        laid.game.RecordMove(At("a1"), At("a2"), nullptr, nullptr, undone);
        const std::size_t entries = laid.game.GetHistory().size();
        laid.game.UndoMove();
        EXPECT_EQ(laid.game.GetHistory().size(), entries) << undone;
        EXPECT_NE(FigureOn(laid.board, 0, 7), nullptr) << undone;
    }
}

TEST(ChessGameRecordMove, NumbersEachEntryAfterTheLast) {
    ChessGame game;
    game.RecordMove(At("a1"), At("a2"), nullptr, nullptr, -1);
    EXPECT_EQ(game.GetHistory().back().GetNumber(), 1);
    game.RecordMove(At("b1"), At("b2"), nullptr, nullptr, 7);
    EXPECT_EQ(game.GetHistory().back().GetNumber(), 2);
    EXPECT_EQ(game.GetHistory().back().GetUndoneNumber(), 7);
    EXPECT_EQ(
        NameOf(game.GetHistory().back().GetTarget()->GetX(), game.GetHistory().back().GetTarget()->GetY()),
        "b2");
}

}  // namespace
}  // namespace tolvane

#include "rules/PawnMove.h"

#include <gtest/gtest.h>

#include "rules/FigureOn.h"
#include "rules/Position.h"

namespace tolvane {
namespace {

constexpr const char* tooFar = "InvalidParameterException: Coordinates are out of bound!";
constexpr const char* offTheBoard = "InvalidParameterException: Coordinate(s) are out of bound!";
constexpr const char* pawnA = "InvalidMoveException: This Move is not Allowed! PAWN-A";
constexpr const char* pawnB = "InvalidMoveException: This Move is not Allowed! PAWN-B";
constexpr const char* pawnC = "InvalidMoveException: This Move is not Allowed! PAWN-C";
constexpr const char* blocked = "InvalidMoveException: This Move is not Allowed! CHESSMOVE_V_A";
constexpr const char* ownFigure = "InvalidMoveException: This Move is not Allowed! DIAGONAL 2";

std::string Reach(ChessBoard* board, const char* pawn) {
    return Names(PawnMove().ReachableFields(board, On(board, pawn)));
}

// What Validate answers: "-", a figure as it stood before, or what it throws.
std::string Validate(ChessBoard* board, const char* pawn, int x, int y) {
    std::string captured;
    const std::string refusal =
        Refusal([&] { captured = NameOf(PawnMove().Validate(board, On(board, pawn), x, y)); });
    return refusal == "nothing" ? captured : refusal;
}

std::string Validate(ChessBoard* board, const char* pawn, const char* target) {
    return Validate(board, pawn, At(target).GetX(), At(target).GetY());
}

TEST(PawnMove, StepsAheadAndCapturesAside) {
    ChessBoard board(true);
    EXPECT_EQ(Reach(&board, "e2"), "e3 e4");
    EXPECT_EQ(Reach(&board, "d7"), "d5 d6");
    EXPECT_EQ(PawnMove().Execute(&board, On(&board, "e2"), 4, 3), nullptr);
    EXPECT_EQ(PawnMove().Execute(&board, On(&board, "d7"), 3, 4), nullptr);
    EXPECT_EQ(Reach(&board, "e4"), "d5 e5");
    ChessFigure* victim = On(&board, "d5");
    EXPECT_EQ(PawnMove().Execute(&board, On(&board, "e4"), 3, 4), victim);
    EXPECT_FALSE(victim->IsAlive());
    EXPECT_EQ(NameOf(On(&board, "d5")), "Pd5");
}

// What a player can pick

TEST(PawnReachableFields, HoldsBothStepsWhileTheWayIsFree) {
    struct Row {
        const char* blocker;  // a black knight
        const char* fields;
    };
    for (const Row& row :
         {Row{"h8", "a3 a4"}, {"a3", ""}, {"a4", "a3"}, {"b3", "a3 a4 b3"}, {"b4", "a3 a4"}}) {
        ChessBoard board(true);
        board.ApplyMove(On(&board, "b8"), At(row.blocker).GetX(), At(row.blocker).GetY());
        EXPECT_EQ(Reach(&board, "a2"), row.fields) << row.blocker;
    }
    for (const Row& row :
         {Row{"h1", "h5 h6"}, {"h6", ""}, {"h5", "h6"}, {"g6", "g6 h5 h6"}, {"g5", "h5 h6"}}) {
        ChessBoard board(true);
        board.ApplyMove(On(&board, "g1"), At(row.blocker).GetX(), At(row.blocker).GetY());
        EXPECT_EQ(Reach(&board, "h7"), row.fields) << row.blocker;
    }
}

TEST(PawnReachableFields, HoldsOneStepPastTheStartRow) {
    const auto board = Lay(R"(
        . . . . . . . .
        . . . . . . . .
        . . . . . p . .
        p . . . . . . .
        . . . . . . . P
        . . P . . . . .
        . . . . . . . .
        . . . . . . . .
    )");
    EXPECT_EQ(Reach(board.get(), "c3"), "c4");
    EXPECT_EQ(Reach(board.get(), "h4"), "h5");
    EXPECT_EQ(Reach(board.get(), "a5"), "a4");
    EXPECT_EQ(Reach(board.get(), "f6"), "f5");
}

TEST(PawnReachableFields, HoldsEnemiesAsideAndNoFriends) {
    const auto board = Lay(R"(
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . n P n . . . q
        . . P . . . . P
        . . . . . N p B
        . . . . . P . P
        . . . . . . . .
    )");
    EXPECT_EQ(Reach(board.get(), "c4"), "b5 d5");
    EXPECT_EQ(Reach(board.get(), "h4"), "");
    EXPECT_EQ(Reach(board.get(), "g3"), "f2 g2 h2");
    EXPECT_EQ(Reach(board.get(), "f2"), "g3");
    EXPECT_EQ(Reach(board.get(), "h2"), "g3");
}

TEST(PawnReachableFields, HoldsTheEnPassantField) {
    const auto board = Lay(R"(
        . . . . . . . .
        . . . p . . . .
        . . . . . . . .
        . . P . P . . P
        . . p . p . . p
        . . . . . . . .
        . . . P . . . .
        . . . . . . . .
    )");
    EXPECT_EQ(Reach(board.get(), "e5"), "e6");
    board->ApplyMove(On(board.get(), "d7"), 3, 4);
    EXPECT_EQ(Reach(board.get(), "e5"), "d6 e6");
    EXPECT_EQ(Reach(board.get(), "c5"), "c6 d6");
    EXPECT_EQ(Reach(board.get(), "h5"), "h6");  // too far aside

    board->ApplyMove(On(board.get(), "d2"), 3, 3);
    EXPECT_EQ(Reach(board.get(), "e4"), "d3 e3");
    EXPECT_EQ(Reach(board.get(), "c4"), "c3 d3");
    EXPECT_EQ(Reach(board.get(), "h4"), "h3");
    EXPECT_EQ(Reach(board.get(), "e5"), "e6");  // Black's candidate is no longer one
}

TEST(PawnReachableFields, HoldsTheEnPassantFieldOnlyFromItsRowAndWhileEmpty) {
    const auto board = Lay(R"(
        . . . . . . . .
        . . . p . . . .
        . . . . P . . .
        . . P . . . . .
        . . . . P . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
    )");
    board->ApplyMove(On(board.get(), "d7"), 3, 4);
    EXPECT_EQ(Reach(board.get(), "e6"), "e7");
    EXPECT_EQ(Reach(board.get(), "e4"), "d5 e5");
    EXPECT_EQ(Reach(board.get(), "c5"), "c6 d6");
    ChessFigure* own = On(board.get(), "e6");
    board->FieldAt(3, 5).SetElement(own);
    EXPECT_EQ(Reach(board.get(), "c5"), "c6");
}

TEST(PawnReachableFields, HoldsNoEnPassantOfTheOwnColour) {
    const auto board = Lay(R"(
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . P . . . . .
        . . . . . . . .
        . . . . . . . .
        . P . . . . . .
        . . . . . . . .
    )");
    board->ApplyMove(On(board.get(), "b2"), 1, 3);
    ASSERT_NE(board->GetDoubleStepPawn(), nullptr);
    EXPECT_EQ(Reach(board.get(), "c5"), "c6");
}

TEST(PawnReachableFields, CannotBeAskedOnTheLastRow) {
    const auto board = Lay(R"(
        . P . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . p . .
    )");
    EXPECT_EQ(Refusal([&] { Reach(board.get(), "b8"); }), offTheBoard);
    EXPECT_EQ(Refusal([&] { Reach(board.get(), "f1"); }), offTheBoard);
}

// What a move is played by

TEST(PawnValidate, GoesByTheShapeOfTheMove) {
    constexpr const char* position = R"(
        . . . . . . . .
        . . . . p . . .
        . . . n . . . .
        . . . P . b . .
        . . . . P . . .
        p . N . . r . R
        P . P . P . . P
        . . . . . . . .
    )";
    struct Row {
        const char* pawn;
        int x;
        int y;
        const char* answer;
    };
    const Row rows[] = {
        // off the board
        {"e2", 4, 9, tooFar},
        {"e2", -1, 2, tooFar},
        {"e2", 9, 2, tooFar},
        {"e2", 4, -1, tooFar},
        {"h2", 8, 2, offTheBoard},
        {"h2", 8, 3, pawnC},
        {"a2", 8, 8, pawnA},
        // backwards, sideways, nowhere, too far
        {"e2", 4, 0, pawnA},
        {"e2", 3, 1, pawnA},
        {"e2", 4, 1, pawnA},
        {"e2", 4, 4, pawnA},
        {"e2", 4, 7, pawnA},
        {"e7", 4, 7, pawnA},
        {"e7", 4, 3, pawnA},
        {"e7", 5, 6, pawnA},
        {"d5", 3, 3, pawnA},
        // two rows
        {"e2", 4, 3, ownFigure},
        {"e7", 4, 4, "-"},
        {"e4", 4, 5, pawnB},
        {"a2", 0, 3, blocked},
        {"c2", 2, 3, blocked},
        {"h2", 7, 3, blocked},
        // one row
        {"e2", 4, 2, "-"},
        {"e7", 4, 5, "-"},
        {"e4", 4, 4, "-"},
        {"d5", 3, 5, pawnC},
        {"a3", 0, 1, pawnC},
        {"a2", 0, 2, pawnC},
        {"c2", 2, 2, ownFigure},
        {"h2", 7, 2, ownFigure},
        // aside
        {"e2", 5, 2, "rf3"},
        {"e2", 3, 2, pawnC},
        {"e4", 5, 4, "bf5"},
        {"e4", 3, 4, pawnC},
        {"e7", 3, 5, pawnC},
        {"e7", 5, 5, pawnC},
        {"d5", 4, 5, pawnC},
        // any other shape
        {"e2", 6, 2, pawnC},
        {"e2", 5, 3, pawnC},
        {"e2", 6, 3, pawnC},
        {"e2", 0, 2, pawnC},
        {"e7", 6, 4, pawnC},
    };
    for (const Row& row : rows) {
        const std::string expected = row.answer;
        const auto board = Lay(position);
        const std::string before = Snapshot(board.get());
        EXPECT_EQ(Validate(board.get(), row.pawn, row.x, row.y), expected)
            << row.pawn << " to " << row.x << "," << row.y;
        EXPECT_EQ(Snapshot(board.get()), before);
        const bool isRefused = expected.find("Exception") != std::string::npos;
        EXPECT_EQ(PawnMove().IsAllowed(board.get(), On(board.get(), row.pawn), row.x, row.y), !isRefused)
            << row.pawn << " to " << row.x << "," << row.y;
        if (isRefused) {
            EXPECT_EQ(
                Refusal([&] { PawnMove().Execute(board.get(), On(board.get(), row.pawn), row.x, row.y); }),
                expected);
            EXPECT_EQ(Snapshot(board.get()), before);
        }
    }
}

TEST(PawnValidate, LetsADoubleStepCaptureStraightAhead) {
    ChessBoard board(true);
    board.ApplyMove(On(&board, "b8"), 0, 3);
    ChessFigure* enemy = On(&board, "a4");
    EXPECT_EQ(Reach(&board, "a2"), "a3");
    EXPECT_EQ(PawnMove().Validate(&board, On(&board, "a2"), 0, 3), enemy);
    EXPECT_EQ(PawnMove().Execute(&board, On(&board, "a2"), 0, 3), enemy);
    EXPECT_FALSE(enemy->IsAlive());
    EXPECT_EQ(NameOf(board.GetDoubleStepPawn()), "Pa4");

    board.ApplyMove(On(&board, "g1"), 7, 4);
    EXPECT_EQ(Validate(&board, "h7", "h5"), "Nh5");
}

TEST(PawnValidate, TakesEnPassantAtOnce) {
    const auto board = Lay(R"(
        . . . . . . . .
        . . . p . . . .
        . . . . . . . .
        . . . . P . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
    )");
    EXPECT_EQ(Validate(board.get(), "e5", "d6"), pawnC);
    ChessFigure* candidate = On(board.get(), "d7");
    board->ApplyMove(candidate, 3, 4);
    EXPECT_EQ(PawnMove().Validate(board.get(), On(board.get(), "e5"), 3, 5), candidate);
    EXPECT_EQ(FigureOn(board.get(), 3, 4), nullptr);
    EXPECT_EQ(Names(board->GetFigures(Player::Black)), "");
    EXPECT_TRUE(board->GetCaptured()->empty());
    EXPECT_TRUE(candidate->IsAlive());
    EXPECT_EQ(NameOf(candidate), "pd5");
    EXPECT_EQ(board->GetDoubleStepPawn(), candidate);
    EXPECT_EQ(NameOf(On(board.get(), "e5")), "Pe5");
}

TEST(PawnValidate, PlaysEnPassantWithoutACaptureInTheLists) {
    const auto board = Lay(R"(
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . p . . .
        . . . . . . . .
        . . . P . . . .
        . . . . . . . .
    )");
    ChessFigure* candidate = On(board.get(), "d2");
    board->ApplyMove(candidate, 3, 3);
    EXPECT_EQ(PawnMove().Execute(board.get(), On(board.get(), "e4"), 3, 2), candidate);
    EXPECT_EQ(Picture(board.get()), WithoutBlanks(R"(
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . p . . . .
        . . . . . . . .
        . . . . . . . .
    )"));
    EXPECT_TRUE(candidate->IsAlive());
    EXPECT_TRUE(board->GetCaptured()->empty());
    EXPECT_EQ(Names(board->GetFigures(Player::White)), "");
}

TEST(PawnValidate, TakesTheCandidateWhereverItStands) {
    const auto board = Lay(R"(
        . . . . . . . .
        . . . p . . . .
        . . . . . . . .
        . . . . . . . P
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
    )");
    board->ApplyMove(On(board.get(), "d7"), 3, 4);
    EXPECT_EQ(Reach(board.get(), "h5"), "h6");
    EXPECT_EQ(Validate(board.get(), "h5", "g6"), "pd5");
    EXPECT_EQ(FigureOn(board.get(), 3, 4), nullptr);
}

TEST(PawnValidate, TakesACandidateOfItsOwnColourToo) {
    const auto board = Lay(R"(
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . P
        . . . . . . . .
        . . . . . . . .
        . P . . . . . .
        . . . . . . . .
    )");
    board->ApplyMove(On(board.get(), "b2"), 1, 3);
    EXPECT_EQ(Validate(board.get(), "h5", "g6"), "Pb4");
    EXPECT_EQ(Names(board->GetFigures(Player::White)), "Ph5");
}

TEST(PawnValidate, TakesNoCandidateFromAnotherRow) {
    for (const char* pawn : {"e3", "e4", "e6"}) {
        const auto board = Lay(R"(
            . . . . . . . .
            . . . p . . . .
            . . . . P . . .
            . . . . . . . .
            . . . . P . . .
            . . . . P . . .
            . . . . . . . .
            . . . . . . . .
        )");
        board->ApplyMove(On(board.get(), "d7"), 3, 4);
        EXPECT_EQ(Validate(board.get(), pawn, 5, At(pawn).GetY() + 1), pawnC) << pawn;
        EXPECT_NE(FigureOn(board.get(), 3, 4), nullptr);
    }
}

TEST(PawnIsAllowed, CanTakeTheCandidateByTheMereQuestion) {
    const auto board = Lay(R"(
        . . . . . . . .
        . . . p . . . .
        . . . . . . . .
        . . . . P . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
    )");
    board->ApplyMove(On(board.get(), "d7"), 3, 4);
    EXPECT_TRUE(PawnMove().IsAllowed(board.get(), On(board.get(), "e5"), 5, 5));
    EXPECT_EQ(FigureOn(board.get(), 3, 4), nullptr);
    EXPECT_EQ(Names(board->GetFigures(Player::Black)), "");
    EXPECT_EQ(NameOf(board->GetDoubleStepPawn()), "pd5");  // it is the candidate until the next move
}

TEST(PawnExecute, ReachesTheLastRowWithACapture) {
    const auto board = Lay(R"(
        . . r . . . . .
        . P . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . p .
        . . . . . . . B
    )");
    ChessFigure* rook = On(board.get(), "c8");
    EXPECT_EQ(PawnMove().Execute(board.get(), On(board.get(), "b7"), 2, 7), rook);
    EXPECT_EQ(NameOf(board->GetPromotionPawn()), "Pc8");
    EXPECT_EQ(Names(board->GetCaptured()), "rc8");
    EXPECT_FALSE(rook->IsAlive());

    EXPECT_EQ(NameOf(PawnMove().Execute(board.get(), On(board.get(), "g2"), 7, 0)), "Bh1");
    EXPECT_EQ(NameOf(board->GetPromotionPawn()), "ph1");
}

TEST(PawnExecute, StopsAtTheBoardPastTheLastRow) {
    const auto board = Lay(R"(
        . P . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
    )");
    EXPECT_EQ(Validate(board.get(), "b8", 1, 8), offTheBoard);
    EXPECT_EQ(Validate(board.get(), "b8", 2, 8), offTheBoard);
    EXPECT_EQ(Validate(board.get(), "b8", 1, 9), tooFar);
}

}  // namespace
}  // namespace tolvane

#include "rules/KingMove.h"

#include <gtest/gtest.h>

#include "rules/FigureOn.h"
#include "rules/Position.h"
#include "rules/Rook.h"

namespace tolvane {
namespace {

constexpr const char* tooFar = "InvalidMoveException: The king can only move 1 field in each direction!";
constexpr const char* notAllowed = "InvalidMoveException: This Move is not Allowed!";
constexpr const char* attacked = "KingIsCheckException: The field is not check free!";
constexpr const char* kingMoved = "InvalidMoveException: The King has already been moved!";
constexpr const char* noRook = "InvalidMoveException: This is not a Rook has already been moved! A";
constexpr const char* rookMoved = "InvalidMoveException: The Rook has already been moved! B";
constexpr const char* notFree = "InvalidMoveException: The fields between king and rook are not free!";
constexpr const char* notCheckFree =
    "InvalidMoveException: The fields between king and rook are not check free!";
constexpr const char* offTheBoard = "InvalidParameterException: Coordinate(s) are out of bound!";

std::string Attackers(ChessBoard* board, Player player, const char* field) {
    const Coordinate place = At(field);
    return Names(KingMove().Attackers(board, board->GetKing(player), place.GetX(), place.GetY()).get());
}

std::string Reach(ChessBoard* board, Player player) {
    return Names(KingMove().ReachableFields(board, board->GetKing(player)));
}

std::string Step(ChessBoard* board, Player player, int x, int y) {
    std::string captured;
    const std::string refusal =
        Refusal([&] { captured = NameOf(KingMove().Execute(board, board->GetKing(player), x, y)); });
    return refusal == "nothing" ? captured : refusal;
}

// CheckMateTest as a game asks it: with all that attack the king where it stands.
std::string MateTest(ChessBoard* board, Player player) {
    const KingMove rule;
    King* king = board->GetKing(player);
    const auto attackers = rule.Attackers(board, king, king->GetX(), king->GetY());
    return Names(rule.CheckMateTest(board, king, *attackers).get());
}

bool CanNeutralise(ChessBoard* board, Player player, const char* attacker) {
    return KingMove().CanNeutralise(board, board->GetKing(player), On(board, attacker));
}

TEST(KingMove, StepsToFreeFieldsAroundIt) {
    const auto board = Lay(R"(
        . . . . k . . .
        . . . . . . . .
        . . . . . . . .
        . . . r . . . .
        . . . . . . . .
        . . . . K P . .
        . . . . . . . .
        . . . . . . . .
    )");
    EXPECT_EQ(Reach(board.get(), Player::White), "e2 e4 f2 f4");
    EXPECT_TRUE(KingMove().IsAllowed(board.get(), board->GetKing(Player::White), 4, 3));
    EXPECT_EQ(Step(board.get(), Player::White, 4, 3), "-");
    EXPECT_EQ(Step(board.get(), Player::White, 3, 4), "rd5");
    EXPECT_EQ(Names(board->GetCaptured()), "rd5");
    EXPECT_EQ(NameOf(On(board.get(), "d5")), "Kd5");
}

TEST(KingMove, ReachesNothingOffTheBoard) {
    const auto board = Lay(R"(
        . . . . . . . k
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        K . . . . . . .
    )");
    EXPECT_EQ(Reach(board.get(), Player::White), "a2 b1 b2");
    EXPECT_EQ(Reach(board.get(), Player::Black), "g7 g8 h7");
}

TEST(KingMove, RefusesAndLeavesTheBoardUntouched) {
    struct Row {
        int x;
        int y;
        const char* refusal;
    };
    const Row rows[] = {
        {4, 3, tooFar},     {7, 1, tooFar},     {0, 0, tooFar},       {4, 4, tooFar},
        {6, 0, noRook},                          // two columns along its row is always a castling
        {2, 0, noRook},     {6, 1, tooFar},      // two columns, but not along its row
        {5, 1, notAllowed}, {4, 0, notAllowed},  // its own field
        {3, 0, attacked},   {3, 1, attacked},   {4, -1, offTheBoard}, {4, 8, tooFar},
    };
    const auto board = Lay(R"(
        . . . r k . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . P . .
        . . . . K . . .
    )");
    const std::string before = Snapshot(board.get());
    for (const Row& row : rows) {
        EXPECT_EQ(Step(board.get(), Player::White, row.x, row.y), row.refusal) << row.x << "," << row.y;
        EXPECT_FALSE(KingMove().IsAllowed(board.get(), board->GetKing(Player::White), row.x, row.y))
            << row.x << "," << row.y;
        EXPECT_EQ(Snapshot(board.get()), before);
    }
}

TEST(KingMove, IsRefusedJustOffTheBoard) {
    const auto board = Lay(R"(
        k . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . K
    )");
    EXPECT_EQ(Step(board.get(), Player::White, 8, 0), offTheBoard);
    EXPECT_EQ(Step(board.get(), Player::White, 8, 1), offTheBoard);
    EXPECT_EQ(Step(board.get(), Player::Black, -1, 7), offTheBoard);
    EXPECT_EQ(Step(board.get(), Player::Black, 0, 8), offTheBoard);
}

// Attackers

TEST(KingAttackers, FindsEveryKindInListOrder) {
    const auto board = Lay(R"(
        . . . . r . . .
        . b . . . . . .
        . . . n . . . .
        . . . . . p . .
        q . . . . . . .
        . . . k . . . .
        . . . . . . . .
        . . . . . . . K
    )");
    EXPECT_EQ(Attackers(board.get(), Player::White, "e4"), "re8 bb7 nd6 pf5 qa4 kd3");
    EXPECT_EQ(Attackers(board.get(), Player::White, "h8"), "re8");
    EXPECT_EQ(Attackers(board.get(), Player::White, "h3"), "");
    EXPECT_EQ(Attackers(board.get(), Player::Black, "g2"), "Kh1");
    EXPECT_EQ(Attackers(board.get(), Player::Black, "h3"), "");
    EXPECT_EQ(Attackers(board.get(), Player::Black, "f1"), "");
}

TEST(KingAttackers, SeesThroughNoFigure) {
    const auto board = Lay(R"(
        . . . . r . . k
        . b . . . . . .
        . . . . P . . .
        . . . p . . . .
        q . P . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . K
    )");
    EXPECT_EQ(Attackers(board.get(), Player::White, "e4"), "pd5");
    EXPECT_EQ(Attackers(board.get(), Player::White, "e6"), "re8");
}

TEST(KingAttackers, FollowsTheListWhenItsOrderChanges) {
    const auto board = Lay(R"(
        . . . . r . . k
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        q . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . K
    )");
    ASSERT_EQ(Attackers(board.get(), Player::White, "e4"), "re8 qa4");
    ChessFigure* rook = On(board.get(), "e8");
    board->RemoveFigure(rook);
    board->RestoreMove(At("h1"), At("e8"), board->GetKing(Player::White), rook);
    EXPECT_EQ(Attackers(board.get(), Player::White, "e4"), "qa4 re8");
}

TEST(KingAttackers, SeesPawnsAsideOfTheirWay) {
    const auto board = Lay(R"(
        . . . . . . . k
        . . . . . . . .
        . . . p . . . .
        . . . . . . . .
        . . . . . . . .
        . . . P . . . .
        . . . . . . . .
        . . . . . . . K
    )");
    EXPECT_EQ(Attackers(board.get(), Player::White, "c5"), "pd6");
    EXPECT_EQ(Attackers(board.get(), Player::White, "e5"), "pd6");
    EXPECT_EQ(Attackers(board.get(), Player::White, "d5"), "");
    EXPECT_EQ(Attackers(board.get(), Player::White, "c7"), "");
    EXPECT_EQ(Attackers(board.get(), Player::White, "b5"), "");
    EXPECT_EQ(Attackers(board.get(), Player::Black, "c4"), "Pd3");
    EXPECT_EQ(Attackers(board.get(), Player::Black, "e4"), "Pd3");
    EXPECT_EQ(Attackers(board.get(), Player::Black, "d4"), "");
    EXPECT_EQ(Attackers(board.get(), Player::Black, "e2"), "");
}

TEST(KingAttackers, DoesNotSeeAGuardThatMovesAlongLinesOrJumps) {
    struct Row {
        char guard;
        const char* place;
        bool isSeen;
    };
    const Row rows[] = {
        {'r', "d8", false}, {'b', "a8", false}, {'n', "c7", false}, {'q', "h5", false},
        {'p', "c6", true},  {'p', "e6", true},  {'k', "c6", true},
    };
    for (const Row& row : rows) {
        std::string picture = WithoutBlanks(R"(
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . n . . . .
            . . . . K . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
        )");
        picture[(7 - At(row.place).GetY()) * 9 + At(row.place).GetX()] = row.guard;
        const auto board = Lay(picture);
        const bool isReachable = Reach(board.get(), Player::White).find("d5") != std::string::npos;
        EXPECT_EQ(Attackers(board.get(), Player::White, "d5"),
                  row.isSeen ? row.guard + std::string(row.place) : "")
            << row.guard;
        EXPECT_EQ(isReachable, !row.isSeen) << row.guard;
    }
}

TEST(KingAttackers, TakesTheFieldBehindTheKingForFree) {
    const auto board = Lay(R"(
        k . . . r . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . K . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
    )");
    EXPECT_EQ(Attackers(board.get(), Player::White, "e4"), "re8");
    EXPECT_EQ(Attackers(board.get(), Player::White, "e5"), "re8");
    EXPECT_EQ(Attackers(board.get(), Player::White, "e3"), "");
    EXPECT_EQ(Reach(board.get(), Player::White), "d3 d4 d5 e3 f3 f4 f5");
}

TEST(KingAttackers, SkipsAFigureOnTheKingsOwnField) {
    const auto board = Lay(R"(
        k . . . r . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . K . . .
    )");
    board->ApplyMove(On(board.get(), "e8"), 4, 0);
    EXPECT_EQ(Attackers(board.get(), Player::White, "e1"), "");
    EXPECT_EQ(Attackers(board.get(), Player::White, "e5"), "");
}

// CheckMateTest

TEST(KingCheckMateTest, ListsWhoHoldsTheFieldsBesideAMatedKing) {
    const auto board = Lay(R"(
        . . . . . . . k
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . r . . . . . .
        r . . . . . . K
    )");
    EXPECT_EQ(MateTest(board.get(), Player::White), "ra1 rb2 rb2");
}

TEST(KingCheckMateTest, AnswersNullWithoutAttackers) {
    ChessBoard board(true);
    const KingMove rule;
    EXPECT_EQ(rule.CheckMateTest(&board, board.GetKing(Player::White), FigureList()), nullptr);
}

TEST(KingCheckMateTest, AnswersNullWhileAFieldLooksFree) {
    const auto board = Lay(R"(
        . . . . . . . k
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        r . . . . . . K
    )");
    EXPECT_EQ(MateTest(board.get(), Player::White), "null");
}

TEST(KingCheckMateTest, TakesTheFieldBehindTheKingForAWayOut) {
    const auto board = Lay(R"(
        . . . . . . . k
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . r . . . . . .
        r . . . . . K .
    )");
    EXPECT_EQ(MateTest(board.get(), Player::White), "null");
}

TEST(KingCheckMateTest, DoesNotCallASmotheredKingMated) {
    const auto board = Lay(R"(
        k . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . n P P
        . . . . . . R K
    )");
    EXPECT_EQ(MateTest(board.get(), Player::White), "");
}

TEST(KingCheckMateTest, IsContentWithOneAttackerThatCanBeDealtWith) {
    const auto board = Lay(R"(
        . . . . . . . k
        . . . . . . . .
        . . b . . . . .
        . . . . . . . .
        . N . . . . . .
        . . . . . . . .
        . r . . . . . .
        r . . . . . . K
    )");
    ASSERT_EQ(Attackers(board.get(), Player::White, "h1"), "bc6 ra1");
    EXPECT_EQ(MateTest(board.get(), Player::White), "null");
    const FigureList rookAlone{On(board.get(), "a1")};
    EXPECT_EQ(Names(KingMove().CheckMateTest(board.get(), board->GetKing(Player::White), rookAlone).get()),
              "ra1 bc6 rb2 rb2");
}

TEST(KingCheckMateTest, LooksForAWayOutThroughEnemyFigures) {
    const auto board = Lay(R"(
        . . . . . . . k
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . r . . . . . n
        r . . . . . . K
    )");
    // The rook on b2 guards the knight, but guards are not seen: the king may seem to take it.
    EXPECT_EQ(Attackers(board.get(), Player::White, "h2"), "");
    EXPECT_EQ(MateTest(board.get(), Player::White), "null");
}

// CanNeutralise

TEST(KingCanNeutralise, AsksAllFiguresOfItsSide) {
    struct Row {
        const char* what;
        const char* picture;
        const char* attacker;
        bool answer;
    };
    const Row rows[] = {
        {"a rook takes the attacker", R"(
            k . . . r . . R
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . K . . .
         )",
         "e8", true},
        {"a bishop steps between", R"(
            k . . . r . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . P . P . .
            . . . R K B . .
         )",
         "e8", true},
        {"nobody steps between a knight and the king", R"(
            k . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . n . . . .
            . . . . . . R .
            . . . . K . . .
         )",
         "d3", false},
        {"a knight is taken", R"(
            k . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . n . . . R
            . . . . . . . .
            . . . . K . . .
         )",
         "d3", true},
        {"no pawn takes the attacker", R"(
            k . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . n . . . .
            . . P . . . . .
            . . . . K . . .
         )",
         "d3", false},
        {"no pawn takes the attacker beside the king", R"(
            k . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . b . . . . . .
            P . . . . . . .
            . . . K . . . .
         )",
         "b3", false},
        {"a pawn steps between", R"(
            k . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            r . . . . . . K
            . . . P . . . .
            . . . . . . . .
            . . . . . . . .
         )",
         "a4", true},
        {"a pawn steps between by two rows", R"(
            k . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            r . . . . . . K
            . . . . . . . .
            . . . P . . . .
            . . . . . . . .
         )",
         "a4", true},
        {"a pawn on the attacker's column has no way", R"(
            k . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            r . . . . . . K
            P . . . . . . .
            . . . . . . . .
            . . . . . . . .
         )",
         "a4", false},
        {"a pinned figure counts", R"(
            k . . . r . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . n . .
            . . . . B . . .
            . . . . K . . .
         )",
         "f3", true},
        {"the king takes the attacker", R"(
            k . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . q . . .
            . . . . K . . .
         )",
         "e2", true},
        {"a guard that is not seen does not keep it from that", R"(
            k . . . r . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . q . . .
            . . . . K . . .
         )",
         "e2", true},
        {"a guarding pawn does", R"(
            k . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . p . . . .
            . . . . q . . .
            . . . . K . . .
         )",
         "e2", false},
        {"a lone king cannot help itself from afar", R"(
            k . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            r . . . . . . K
         )",
         "a1", false},
    };
    for (const Row& row : rows) {
        const auto board = Lay(row.picture);
        const std::string before = Snapshot(board.get());
        EXPECT_EQ(CanNeutralise(board.get(), Player::White, row.attacker), row.answer) << row.what;
        EXPECT_EQ(Snapshot(board.get()), before) << row.what;
    }
}

TEST(KingCanNeutralise, HoldsForBlackAsForWhite) {
    const auto board = Lay(R"(
        . . . k . . . .
        . . p . p . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . Q . . . K
    )");
    EXPECT_FALSE(CanNeutralise(board.get(), Player::Black, "d1"));
    board->ApplyMove(On(board.get(), "d1"), 7, 3);
    EXPECT_FALSE(CanNeutralise(board.get(), Player::Black, "h4"));
    board->ApplyMove(On(board.get(), "e7"), 6, 5);
    EXPECT_TRUE(CanNeutralise(board.get(), Player::Black, "h4"));  // g6-g5 steps between
}

TEST(KingCanNeutralise, CanTakeTheEnPassantCandidateOffTheBoard) {
    const auto board = Lay(R"(
        k . . . . . . .
        . . . . . . p .
        r . . . . . . K
        . . . P . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
    )");
    ChessFigure* candidate = On(board.get(), "g7");
    board->ApplyMove(candidate, 6, 4);
    EXPECT_TRUE(CanNeutralise(board.get(), Player::White, "a6"));
    EXPECT_EQ(FigureOn(board.get(), 6, 4), nullptr);
    EXPECT_EQ(Names(board->GetFigures(Player::Black)), "ka8 ra6");
    EXPECT_TRUE(candidate->IsAlive());
    EXPECT_TRUE(board->GetCaptured()->empty());
    EXPECT_EQ(board->GetDoubleStepPawn(), candidate);
}

TEST(KingCanNeutralise, SurvivesThatTheListItWalksGetsShorter) {
    const auto board = Lay(R"(
        k . . . . . . .
        . . . . . . . .
        r . . . . . . K
        . . . P . . . .
        . . . . . . . .
        . . . . . . . .
        P . . . . . . .
        . . . . . . . .
    )");
    board->ApplyMove(On(board.get(), "a2"), 0, 3);
    EXPECT_TRUE(CanNeutralise(board.get(), Player::White, "a6"));
    EXPECT_EQ(Names(board->GetFigures(Player::White)), "Pd5 Kh6");
}

TEST(KingCanNeutralise, SparesTheCandidateOnTheAttackersColumn) {
    const auto board = Lay(R"(
        . . . . K . . k
        . . . . . . p .
        . . . . . . . .
        . . . P . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . r . . .
    )");
    board->ApplyMove(On(board.get(), "g7"), 6, 4);
    EXPECT_FALSE(CanNeutralise(board.get(), Player::White, "e1"));
    EXPECT_NE(FigureOn(board.get(), 6, 4), nullptr);
}

// Castling

constexpr const char* readyToCastle = R"(
    r . . . k . . r
    p . . . . . . p
    . . . . . . . .
    . . . . . . . .
    . . . . . . . .
    . . . . . . . .
    P . . . . . . P
    R . . . K . . R
)";

TEST(KingCastling, MovesRookAndKing) {
    struct Row {
        Player player;
        int column;
        const char* row;
        const char* rook;
    };
    const Row rows[] = {
        {Player::White, 6, "R....RK.", "Rf1"},
        {Player::White, 2, "..KR...R", "Rd1"},
        {Player::Black, 6, "r....rk.", "rf8"},
        {Player::Black, 2, "..kr...r", "rd8"},
    };
    for (const Row& row : rows) {
        const auto board = Lay(readyToCastle);
        const int y = row.player == Player::White ? 0 : 7;
        EXPECT_EQ(Step(board.get(), row.player, row.column, y), "-");
        EXPECT_EQ(Picture(board.get()).substr((7 - y) * 9, 8), row.row);
        EXPECT_EQ(NameOf(board->GetCastlingRook()), row.rook);
        EXPECT_TRUE(board->GetKing(row.player)->HasMoved());
        EXPECT_TRUE(static_cast<Rook*>(board->GetCastlingRook())->HasMoved());
        EXPECT_EQ(board->GetCurrentPlayer(), Player::White) << "two moves flip the toggle twice";
        EXPECT_TRUE(board->GetCaptured()->empty());
    }
}

TEST(KingCastling, IsAmongTheReachableFields) {
    const auto board = Lay(readyToCastle);
    EXPECT_EQ(Reach(board.get(), Player::White), "c1 d1 d2 e2 f1 f2 g1");
    EXPECT_EQ(Reach(board.get(), Player::Black), "c8 d7 d8 e7 f7 f8 g8");
    static_cast<Rook*>(On(board.get(), "a1"))->MoveTo(0, 0);
    EXPECT_EQ(Reach(board.get(), Player::White), "d1 d2 e2 f1 f2 g1");
    board->GetKing(Player::Black)->MoveTo(4, 7);
    EXPECT_EQ(Reach(board.get(), Player::Black), "d7 d8 e7 f7 f8");
}

TEST(KingCastling, IsOnlyTriedWhenTested) {
    const auto board = Lay(readyToCastle);
    const std::string before = Snapshot(board.get());
    King* king = board->GetKing(Player::White);
    EXPECT_TRUE(KingMove().IsAllowed(board.get(), king, 6, 0));
    EXPECT_TRUE(KingMove().IsAllowed(board.get(), king, 2, 0));
    KingMove().Castle(board.get(), king, 6, 0, true);
    EXPECT_EQ(KingMove().ValidateStep(board.get(), king, 2, 0, true), nullptr);
    Reach(board.get(), Player::White);
    EXPECT_EQ(Snapshot(board.get()), before);
}

TEST(KingCastling, LeavesTheKingToItsCaller) {
    const auto board = Lay(readyToCastle);
    KingMove().Castle(board.get(), board->GetKing(Player::White), 2, 0, false);
    EXPECT_EQ(NameOf(board->GetCastlingRook()), "Rd1");
    EXPECT_EQ(NameOf(On(board.get(), "e1")), "Ke1");
    EXPECT_EQ(board->GetCurrentPlayer(), Player::Black);
}

TEST(KingCastling, ReadsNoRow) {
    const auto board = Lay(readyToCastle);
    EXPECT_EQ(Refusal([&] { KingMove().Castle(board.get(), board->GetKing(Player::White), 6, 5, true); }),
              "nothing");
}

TEST(KingCastling, IsRefused) {
    struct Row {
        const char* what;
        const char* picture;
        int column;
        const char* refusal;
    };
    const Row rows[] = {
        {"an empty corner", R"(
            . . . . k . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            R . . . K . . .
         )",
         6, noRook},
        {"another figure in the corner", R"(
            . . . . k . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            N . . . K . . R
         )",
         2, noRook},
        {"an enemy rook in the corner", R"(
            . . . . k . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            R . . . K . . r
         )",
         6, rookMoved},
        {"the king in check", R"(
            . . . . r . . k
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            R . . . K . . R
         )",
         6, notCheckFree},
        {"the king in check, behind a figure as well", R"(
            . . . . r . . k
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            R . . . K B . R
         )",
         6, notCheckFree},
        {"a bishop in the way", R"(
            . . . . . . . k
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            R . . . K B . R
         )",
         6, notFree},
        {"a knight in the way", R"(
            . . . . . . . k
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            R N . . K . . R
         )",
         2, notFree},
        {"an enemy in the way", R"(
            . . . . . . . k
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            R . n . K . . R
         )",
         2, notFree},
        {"a field that the king passes attacked", R"(
            . . . . . r . k
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            R . . . K . . R
         )",
         6, notCheckFree},
        {"an attacked field before a figure in the way", R"(
            . . . . . r . k
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            R . . . K . N R
         )",
         6, notCheckFree},
        {"the king's target attacked", R"(
            . . r . . . . k
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            R . . . K . . R
         )",
         2, notCheckFree},
        {"the field beside the far rook attacked", R"(
            . . . . . . . k
            . . . . . . . b
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            R . . . K . . R
         )",
         2, notCheckFree},
        {"the far rook attacked", R"(
            r . . . . . . k
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            R . . . K . . R
         )",
         2, notCheckFree},
        {"the near rook attacked", R"(
            b . . . . . . k
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            R . . . K . . R
         )",
         6, notCheckFree},
        {"a pawn's attack, though nothing stands there to take", R"(
            . . . . . . . k
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . . .
            . . . . . . p .
            R . . . K . . R
         )",
         6, notCheckFree},
    };
    for (const Row& row : rows) {
        const auto board = Lay(row.picture);
        const std::string before = Snapshot(board.get());
        EXPECT_EQ(Step(board.get(), Player::White, row.column, 0), row.refusal) << row.what;
        EXPECT_FALSE(KingMove().IsAllowed(board.get(), board->GetKing(Player::White), row.column, 0))
            << row.what;
        EXPECT_EQ(Snapshot(board.get()), before) << row.what;
    }
}

TEST(KingCastling, StaysPossibleToTheOtherSide) {
    const auto board = Lay(R"(
        . . . . . r . k
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        R . . . K . . R
    )");
    EXPECT_EQ(Step(board.get(), Player::White, 6, 0), notCheckFree);
    EXPECT_EQ(Step(board.get(), Player::White, 2, 0), "-");
}

TEST(KingCastling, IsRefusedToMovedFigures) {
    const auto board = Lay(readyToCastle);
    On(board.get(), "h1")->MoveTo(7, 0);
    EXPECT_EQ(Step(board.get(), Player::White, 6, 0), rookMoved);
    King* king = board->GetKing(Player::White);
    king->MoveTo(4, 0);
    EXPECT_EQ(Refusal([&] { KingMove().Castle(board.get(), king, 2, 0, true); }), kingMoved);
    EXPECT_EQ(Refusal([&] { KingMove().Castle(board.get(), king, 6, 0, false); }), kingMoved);
    EXPECT_EQ(Step(board.get(), Player::White, 2, 0), tooFar) << "a moved king's two columns are no castling";
}

TEST(KingCastling, GoesNowhereFromItsOwnTarget) {
    const auto board = Lay(R"(
        . . k . . . . r
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . K R
    )");
    EXPECT_EQ(Reach(board.get(), Player::White), "f1 f2 g2");
    EXPECT_EQ(Refusal([&] { KingMove().Castle(board.get(), board->GetKing(Player::White), 6, 0, true); }),
              notFree);
}

}  // namespace
}  // namespace tolvane

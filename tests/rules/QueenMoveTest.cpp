#include "rules/QueenMove.h"

#include <gtest/gtest.h>

#include "rules/Position.h"

namespace tolvane {
namespace {

constexpr const char* position = R"(
    . . . p . . . P
    . . . . . . . .
    . p . . . P . .
    . . . . . . . .
    . p . Q . . P .
    . . . . . . . .
    . N . P . n . .
    k . . . . . . K
)";

TEST(QueenMove, PlaysAlongAllLines) {
    const auto board = Lay(position);
    ChessFigure* queen = On(board.get(), "d4");
    EXPECT_EQ(Names(QueenMove().ReachableFields(board.get(), queen)),
              "b4 b6 c3 c4 c5 d3 d5 d6 d7 d8 e3 e4 e5 f2 f4");
    EXPECT_EQ(QueenMove().Execute(board.get(), queen, 4, 3), nullptr);
    EXPECT_EQ(QueenMove().Execute(board.get(), queen, 4, 7), nullptr);
    EXPECT_EQ(QueenMove().Execute(board.get(), queen, 0, 3), nullptr);
    EXPECT_EQ(NameOf(On(board.get(), "a4")), "Qa4");
}

TEST(QueenMove, IsAllowedExactlyWhereItReaches) {
    const auto board = Lay(position);
    ChessFigure* queen = On(board.get(), "d4");
    const std::string reachable = Names(QueenMove().ReachableFields(board.get(), queen));
    for (int x = 0; x < 8; ++x) {
        for (int y = 0; y < 8; ++y) {
            const bool listed = reachable.find(NameOf(x, y)) != std::string::npos;
            EXPECT_EQ(QueenMove().IsAllowed(board.get(), queen, x, y), listed) << NameOf(x, y);
        }
    }
}

TEST(QueenMove, AnswersWhatSheCaptures) {
    for (const char* target : {"b4", "d8", "b6", "f2"}) {
        const auto board = Lay(position);
        ChessFigure* victim = On(board.get(), target);
        const Coordinate place = At(target);
        EXPECT_EQ(QueenMove().Execute(board.get(), On(board.get(), "d4"), place.GetX(), place.GetY()), victim)
            << target;
        EXPECT_FALSE(victim->IsAlive());
    }
}

TEST(QueenMove, RefusesAndLeavesTheBoardUntouched) {
    struct Row {
        int x;
        int y;
        const char* refusal;
    };
    const Row rows[] = {
        {4, 5, "InvalidMoveException: This Move is not Allowed!"},  // like a knight
        {0, 4, "InvalidMoveException: This Move is not Allowed!"},
        {3, 3, "InvalidMoveException: This Move is not Allowed! DIAGONAL 2"},  // her own field
        {6, 3, "InvalidMoveException: This Move is not Allowed! DIAGONAL 2"},
        {3, 1, "InvalidMoveException: This Move is not Allowed! DIAGONAL 2"},
        {5, 5, "InvalidMoveException: This Move is not Allowed! DIAGONAL 2"},
        {7, 3, "InvalidMoveException: This Move is not Allowed! CHESSMOVE_H_A"},
        {0, 3, "InvalidMoveException: This Move is not Allowed! CHESSMOVE_H_A"},
        {3, 0, "InvalidMoveException: This Move is not Allowed! CHESSMOVE_V_A"},
        {3, 8, "InvalidMoveException: This Move is not Allowed! CHESSMOVE_V_A"},
        {7, 7, "InvalidMoveException: This Move is not Allowed! DIAGONAL +1+"},
        {0, 6, "InvalidMoveException: This Move is not Allowed! DIAGONAL +1+"},
        {9, 3, "InvalidParameterException: Coordinates are out of bound!"},
        {3, -1, "InvalidParameterException: Coordinates are out of bound!"},
        {8, 4, "InvalidMoveException: This Move is not Allowed!"},
    };
    const auto board = Lay(position);
    const std::string before = Snapshot(board.get());
    ChessFigure* queen = On(board.get(), "d4");
    for (const Row& row : rows) {
        EXPECT_EQ(Refusal([&] { QueenMove().Execute(board.get(), queen, row.x, row.y); }), row.refusal)
            << row.x << "," << row.y;
        EXPECT_FALSE(QueenMove().IsAllowed(board.get(), queen, row.x, row.y)) << row.x << "," << row.y;
        EXPECT_EQ(Snapshot(board.get()), before);
    }
}

TEST(QueenMove, EndsAtTheBoardOnAFreeLine) {
    const auto board = Lay(R"(
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        . . . . . . . .
        Q . . . . . . .
    )");
    ChessFigure* queen = On(board.get(), "a1");
    for (const auto& [x, y] : {std::pair(8, 0), {0, 8}, {8, 8}}) {
        EXPECT_EQ(Refusal([&, column = x, row = y] { QueenMove().Execute(board.get(), queen, column, row); }),
                  "InvalidParameterException: Coordinate(s) are out of bound!");
        EXPECT_FALSE(QueenMove().IsAllowed(board.get(), queen, x, y));
    }
}

}  // namespace
}  // namespace tolvane

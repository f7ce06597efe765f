#include "rules/ChessMoveFactory.h"

#include <gtest/gtest.h>

#include <typeindex>

#include "rules/BishopMove.h"
#include "rules/CastlingMove.h"
#include "rules/KingMove.h"
#include "rules/KnightMove.h"
#include "rules/MoveFactory.h"
#include "rules/PawnMove.h"
#include "rules/QueenMove.h"
#include "rules/RookMove.h"

namespace tolvane {
namespace {

TEST(ChessMoveFactory, FindsTheRuleForEachKind) {
    struct Row {
        FigureType type;
        std::type_index rule;
    };
    const Row rows[] = {
        {FigureType::Pawn, typeid(PawnMove)},     {FigureType::Rook, typeid(RookMove)},
        {FigureType::Knight, typeid(KnightMove)}, {FigureType::Bishop, typeid(BishopMove)},
        {FigureType::Queen, typeid(QueenMove)},   {FigureType::King, typeid(KingMove)},
    };
    for (const Row& row : rows) {
        for (const Player player : {Player::White, Player::Black}) {
            const ChessFigure figure(0, 0, true, player, row.type);
            const auto move = ChessMoveFactory().CreateMove(&figure);
            ASSERT_NE(move, nullptr);
            const ChessMove& rule = *move;
            EXPECT_EQ(std::type_index(typeid(rule)), row.rule);
        }
    }
}

TEST(ChessMoveFactory, HasNoRuleForStrangers) {
    const ChessFigure stranger(0, 0, true, Player::White, static_cast<FigureType>(6));
    EXPECT_EQ(ChessMoveFactory().CreateMove(&stranger), nullptr);
}

TEST(ChessMoveFactory, HasNoStateAndNoRelatives) {
    EXPECT_TRUE(std::is_empty_v<ChessMoveFactory>);
    EXPECT_FALSE((std::is_base_of_v<MoveFactory, ChessMoveFactory>));
    EXPECT_TRUE(std::is_abstract_v<MoveFactory>);
}

TEST(CastlingMove, IsAMoveThatStaysAbstract) {
    EXPECT_TRUE((std::is_base_of_v<ChessMove, CastlingMove>));
    EXPECT_TRUE(std::is_abstract_v<CastlingMove>);
}

}  // namespace
}  // namespace tolvane

#include "actions/ActionFactory.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <memory>
#include <typeinfo>

#include "actions/CastlingAction.h"
#include "actions/Duel.h"
#include "actions/King_SelfDestruct.h"
#include "actions/KnightMoveAction.h"
#include "actions/Knight_VS_X.h"
#include "actions/MoveAction.h"
#include "actions/Pawn_EnPassant.h"
#include "actions/QueenMoveAction.h"
#include "actions/Queen_VS_X.h"
#include "actions/Scene.h"
#include "assets/TrivialRelease.h"

namespace tolvane::test {

namespace {

using Script = std::unique_ptr<Action, TrivialRelease>;
using TypeTest = bool (*)(const Action*);

template <typename Class>
bool Is(const Action* script) {
    return script && typeid(*script) == typeid(Class);
}

constexpr std::array types{FigureType::Pawn,   FigureType::Rook,  FigureType::Knight,
                           FigureType::Bishop, FigureType::Queen, FigureType::King};

class ActionFactoryTest : public testing::Test {
protected:
    ChessFigure3D& White(FigureType type, int column, int row) {
        return troupe.Place(Player::White, type, column, row);
    }
    ChessFigure3D& Black(FigureType type, int column, int row) {
        return troupe.Place(Player::Black, type, column, row);
    }

    Troupe troupe;
    ActionFactory factory;
};

}  // namespace

TEST_F(ActionFactoryTest, MakesAScriptThatAFigurePlays) {
    ChessFigure3D& pawn = White(FigureType::Pawn, 4, 1);
    pawn.SetAction(factory.CreateMoveAction(&pawn, 4, 3, fieldWidth));
    EXPECT_EQ(Scene(troupe, pawn, nullptr, {.frameTime = 0.02f}).Play().endings, 1);
    ExpectAtRest(pawn, 4, 3, 0.0f);
}

TEST_F(ActionFactoryTest, ChoosesTheWalkByTheFigure) {
    constexpr std::array<TypeTest, 6> expected{Is<MoveAction>, Is<MoveAction>,      Is<KnightMoveAction>,
                                               Is<MoveAction>, Is<QueenMoveAction>, Is<MoveAction>};
    for (std::size_t i = 0; i < types.size(); ++i) {
        const Script script(factory.CreateMoveAction(&White(types[i], 4, 3), 4, 4, fieldWidth));
        EXPECT_TRUE(expected[i](script.get())) << i;
    }
}

TEST_F(ActionFactoryTest, HasNothingForAFigureThatIsNoneOfTheSix) {
    Pawn3D stranger(4, 3, Player::White, static_cast<FigureType>(6), troupe.MakeInstance("pawn"),
                    &troupe.Light(), &troupe.Textures(), &troupe.Sounds());
    ChessFigure3D& pawn = Black(FigureType::Pawn, 5, 4);
    EXPECT_EQ(factory.CreateMoveAction(&stranger, 4, 4, fieldWidth), nullptr);
    EXPECT_EQ(factory.CreateAttackAction(&stranger, &pawn, fieldWidth), nullptr);
    EXPECT_EQ(factory.CreateAttackAction(&pawn, &stranger, fieldWidth), nullptr);
}

TEST_F(ActionFactoryTest, ChoosesTheFightByThePair) {
    constexpr std::array<std::array<TypeTest, 5>, 6> expected{{
        {Is<Pawn_VS_Pawn>, Is<Pawn_VS_Rook>, Is<Pawn_VS_Knight>, Is<Pawn_VS_Bishop>, Is<Pawn_VS_Queen>},
        {Is<Rook_VS_X>, Is<Rook_VS_Rook>, Is<Rook_VS_X>, Is<Rook_VS_X>, Is<Rook_VS_X>},
        {Is<Knight_VS_X>, Is<Knight_VS_X>, Is<Knight_VS_X>, Is<Knight_VS_X>, Is<Knight_VS_X>},
        {Is<Bishop_VS_Pawn>, Is<Bishop_VS_Rook>, Is<Bishop_VS_Knight>, Is<Bishop_VS_Bishop>,
         Is<Bishop_VS_Queen>},
        {Is<Queen_VS_X>, Is<Queen_VS_X>, Is<Queen_VS_X>, Is<Queen_VS_X>, Is<Queen_VS_X>},
        {Is<King_VS_Pawn>, Is<King_VS_Rook>, Is<King_VS_Knight>, Is<King_VS_Bishop>, Is<King_VS_Queen>},
    }};
    for (std::size_t attacker = 0; attacker < 6; ++attacker)
        for (std::size_t victim = 0; victim < 5; ++victim) {
            const Script script(factory.CreateAttackAction(&White(types[attacker], 4, 3),
                                                           &Black(types[victim], 5, 4), fieldWidth));
            EXPECT_TRUE(expected[attacker][victim](script.get())) << attacker << " against " << victim;
        }
}

TEST_F(ActionFactoryTest, HasNoFightAgainstAKing) {
    ChessFigure3D& king = Black(FigureType::King, 5, 4);
    for (const FigureType type : types)
        EXPECT_EQ(factory.CreateAttackAction(&White(type, 4, 3), &king, fieldWidth), nullptr);
}

TEST_F(ActionFactoryTest, TellsEnPassantByTheRowAlone) {
    ChessFigure3D& pawn = White(FigureType::Pawn, 4, 4);
    const Script beside(factory.CreateAttackAction(&pawn, &Black(FigureType::Pawn, 5, 4), fieldWidth));
    EXPECT_TRUE(Is<Pawn_EnPassant>(beside.get()));
    const Script ahead(factory.CreateAttackAction(&pawn, &Black(FigureType::Pawn, 5, 5), fieldWidth));
    EXPECT_TRUE(Is<Pawn_VS_Pawn>(ahead.get()));
    const Script rookBeside(factory.CreateAttackAction(&pawn, &Black(FigureType::Rook, 5, 4), fieldWidth));
    EXPECT_TRUE(Is<Pawn_VS_Rook>(rookBeside.get()));
}

TEST_F(ActionFactoryTest, MakesTheKingsScenes) {
    ChessFigure3D& king = White(FigureType::King, 4, 0);
    const Script castling(factory.CreateCastlingAction(&king, &White(FigureType::Rook, 7, 0), fieldWidth));
    EXPECT_TRUE(Is<CastlingAction>(castling.get()));
    const Script end(factory.CreateSelfDestructAction(&king));
    EXPECT_TRUE(Is<King_SelfDestruct>(end.get()));
}

}  // namespace tolvane::test

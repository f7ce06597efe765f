#include <gtest/gtest.h>

#include <type_traits>

#include "rules/Bishop.h"
#include "rules/King.h"
#include "rules/Knight.h"
#include "rules/Pawn.h"
#include "rules/Queen.h"
#include "rules/Rook.h"

namespace tolvane {
namespace {

TEST(Figure, KnowsItsPlaceItsOwnerAndItsKind) {
    Knight knight(1, 0, true, Player::White);
    EXPECT_EQ(knight.GetX(), 1);
    EXPECT_EQ(knight.GetY(), 0);
    EXPECT_TRUE(knight.IsAlive());
    EXPECT_EQ(knight.GetPlayer(), Player::White);
    EXPECT_EQ(knight.GetType(), FigureType::Knight);
    knight.MoveTo(2, 2);
    EXPECT_EQ(knight.GetX(), 2);
    EXPECT_EQ(knight.GetY(), 2);
}

template <typename Kind>
struct KindOf : testing::Test {};

using Kinds = testing::Types<Pawn, Rook, Knight, Bishop, Queen, King>;
TYPED_TEST_SUITE(KindOf, Kinds);

TYPED_TEST(KindOf, FigureGoesByItsOwnType) {
    constexpr FigureType expected = std::is_same_v<TypeParam, Pawn>     ? FigureType::Pawn
                                    : std::is_same_v<TypeParam, Rook>   ? FigureType::Rook
                                    : std::is_same_v<TypeParam, Knight> ? FigureType::Knight
                                    : std::is_same_v<TypeParam, Bishop> ? FigureType::Bishop
                                    : std::is_same_v<TypeParam, Queen>  ? FigureType::Queen
                                                                        : FigureType::King;
    TypeParam figure(5, 6, false, Player::Black);
    EXPECT_EQ(figure.GetType(), expected);
    EXPECT_EQ(figure.GetPlayer(), Player::Black);
    EXPECT_FALSE(figure.IsAlive());
    ChessFigure& base = figure;
    base.MoveTo(7, 0);
    EXPECT_EQ(figure.GetX(), 7);
    EXPECT_EQ(figure.GetY(), 0);
}

TYPED_TEST(KindOf, FigureDiesAndComesBack) {
    TypeParam figure(0, 0, true, Player::White);
    figure.Kill();
    EXPECT_FALSE(figure.IsAlive());
    figure.SetAlive(true);
    EXPECT_TRUE(figure.IsAlive());
}

TEST(FigureType, HasTheNumbersThatCodesAreMadeOf) {
    EXPECT_EQ(static_cast<int>(FigureType::Pawn), 0);
    EXPECT_EQ(static_cast<int>(FigureType::Rook), 1);
    EXPECT_EQ(static_cast<int>(FigureType::Knight), 2);
    EXPECT_EQ(static_cast<int>(FigureType::Bishop), 3);
    EXPECT_EQ(static_cast<int>(FigureType::Queen), 4);
    EXPECT_EQ(static_cast<int>(FigureType::King), 5);
    EXPECT_EQ(static_cast<int>(Player::White), 0);
    EXPECT_EQ(static_cast<int>(Player::Black), 1);
    EXPECT_EQ(static_cast<int>(Player::NoPlayer), 2);
    EXPECT_EQ(sizeof(FigureType), 4u);
    EXPECT_EQ(sizeof(Player), 4u);
}

TEST(Player, HasAnOpponent) {
    EXPECT_EQ(Opponent(Player::White), Player::Black);
    EXPECT_EQ(Opponent(Player::Black), Player::White);
}

TEST(Rook, IsMovedFromItsFirstMoveOn) {
    Rook rook(0, 0, true, Player::White);
    EXPECT_FALSE(rook.HasMoved());
    rook.MoveTo(0, 4);
    EXPECT_TRUE(rook.HasMoved());
    rook.MoveTo(0, 0);
    EXPECT_TRUE(rook.HasMoved());
}

TEST(Rook, IsNotMovedByBeingPlaced) {
    Rook rook(0, 0, true, Player::White);
    rook.SetPosition(3, 3);
    EXPECT_EQ(rook.GetX(), 3);
    EXPECT_FALSE(rook.HasMoved());
}

TEST(Rook, StaysMovedWhenItIsPutBack) {
    Rook rook(0, 0, true, Player::White);
    rook.MoveTo(0, 4);
    rook.SetPosition(0, 0);
    EXPECT_TRUE(rook.HasMoved());
}

TEST(King, IsMovedFromItsFirstMoveOn) {
    King king(4, 0, true, Player::White);
    EXPECT_FALSE(king.HasMoved());
    king.SetPosition(4, 3);
    EXPECT_FALSE(king.HasMoved());
    king.MoveTo(4, 4);
    EXPECT_TRUE(king.HasMoved());
    king.SetPosition(4, 0);
    EXPECT_TRUE(king.HasMoved());
}

TEST(King, ReportsItsMovesOnTheConsole) {
    King king(4, 0, true, Player::White);
    testing::internal::CaptureStdout();
    king.MoveTo(5, 1);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "§§§§§§ KING MOVED\n§§§§§§ KING MOVED to 5:1\n");
}

TEST(King, IsSilentWhenItIsPlaced) {
    King king(4, 0, true, Player::White);
    testing::internal::CaptureStdout();
    king.SetPosition(5, 1);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST(King, LeavesTheConsoleToKings) {
    Rook rook(0, 0, true, Player::White);
    Queen queen(3, 0, true, Player::White);
    testing::internal::CaptureStdout();
    rook.MoveTo(0, 5);
    queen.MoveTo(3, 5);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

}  // namespace
}  // namespace tolvane

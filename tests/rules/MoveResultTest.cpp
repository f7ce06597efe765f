#include "rules/MoveResult.h"

#include <gtest/gtest.h>

#include <memory>

#include "rules/King.h"
#include "rules/Pawn.h"
#include "rules/Position.h"
#include "rules/Rook.h"

namespace tolvane {
namespace {

std::string Field(Coordinate* answered) {
    const std::unique_ptr<Coordinate> place(answered);
    return place == nullptr ? "-" : NameOf(place->GetX(), place->GetY());
}

TEST(MoveResult, TellsOfACheckAndAMate) {
    King king(4, 7, true, Player::Black);
    Rook rook(4, 0, true, Player::White);
    FigureList attackers{&rook};
    FigureList mateList;
    MoveResult result;
    result.checkedKing = &king;
    result.attackers = &attackers;
    result.mateList = &mateList;
    EXPECT_EQ(result.CheckedPlayer(), Player::Black);
    EXPECT_EQ(result.MatedPlayer(), Player::NoPlayer);
    mateList.push_back(&rook);
    EXPECT_EQ(result.MatedPlayer(), Player::Black);
    EXPECT_EQ(Field(result.CheckedKingField()), "e8");
}

TEST(MoveResult, TellsOfNothingAtFirst) {
    const MoveResult result;
    EXPECT_EQ(result.CheckedPlayer(), Player::NoPlayer);
    EXPECT_EQ(result.MatedPlayer(), Player::NoPlayer);
    EXPECT_EQ(Field(result.CheckedKingField()), "-");
    EXPECT_EQ(Field(result.CastlingRookField()), "-");
    EXPECT_EQ(Field(result.PromotionField()), "-");
    EXPECT_EQ(Field(result.DoubleStepField()), "-");
    EXPECT_EQ(Field(result.CapturedField()), "-");
}

TEST(MoveResult, TakesEmptyListsForNobody) {
    King king(4, 0, true, Player::White);
    FigureList none;
    MoveResult result;
    result.checkedKing = &king;
    result.attackers = &none;
    result.mateList = &none;
    EXPECT_EQ(result.CheckedPlayer(), Player::NoPlayer);
    EXPECT_EQ(result.MatedPlayer(), Player::NoPlayer);
}

TEST(MoveResult, NamesTheFieldOfEachFigure) {
    King king(4, 0, true, Player::White);
    Rook rook(5, 0, true, Player::White);
    Pawn promoting(1, 7, true, Player::White);
    Pawn stepping(2, 3, true, Player::White);
    Pawn taken(3, 4, false, Player::Black);
    const MoveResult result{.checkedKing = &king,
                            .castlingRook = &rook,
                            .promotionPawn = &promoting,
                            .doubleStepPawn = &stepping,
                            .attackers = nullptr,
                            .mateList = nullptr,
                            .captured = &taken};
    EXPECT_EQ(Field(result.CheckedKingField()), "e1");
    EXPECT_EQ(Field(result.CastlingRookField()), "f1");
    EXPECT_EQ(Field(result.PromotionField()), "b8");
    EXPECT_EQ(Field(result.DoubleStepField()), "c4");
    EXPECT_EQ(Field(result.CapturedField()), "d5");
}

TEST(MoveResult, AnswersANewCoordinateEachTime) {
    Rook rook(5, 0, true, Player::White);
    MoveResult result;
    result.castlingRook = &rook;
    const std::unique_ptr<Coordinate> first(result.CastlingRookField());
    const std::unique_ptr<Coordinate> second(result.CastlingRookField());
    EXPECT_NE(first, second);
}

}  // namespace
}  // namespace tolvane

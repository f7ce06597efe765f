#include "rules/Field.h"

#include <gtest/gtest.h>

#include "rules/Queen.h"

namespace tolvane {
namespace {

TEST(Field, HoldsWhatStandsOnIt) {
    Queen queen(3, 0, true, Player::White);
    Field field(3, 0);
    EXPECT_EQ(field.GetElement(), nullptr);
    field.SetElement(&queen);
    EXPECT_EQ(static_cast<ChessFigure*>(field.GetElement()), &queen);
    EXPECT_EQ(field.GetX(), 3);
    EXPECT_EQ(field.GetY(), 0);
}

TEST(Field, IsEmptyAtZeroAtFirst) {
    const Field field;
    EXPECT_EQ(field.GetElement(), nullptr);
    EXPECT_EQ(field.GetX(), 0);
    EXPECT_EQ(field.GetY(), 0);
}

TEST(Field, AnswersItselfWhenItIsSet) {
    Queen queen(3, 0, true, Player::White);
    Field field(3, 0, &queen);
    EXPECT_EQ(&field.SetElement(nullptr), &field);
    EXPECT_EQ(field.GetElement(), nullptr);
}

TEST(Field, IsCopiedWithItsOccupant) {
    Queen queen(3, 4, true, Player::Black);
    const Field field(3, 4, &queen);
    const Field copy(field);  // NOLINT(performance-unnecessary-copy-initialization): the copy is the test
    EXPECT_EQ(copy.GetElement(), &queen);
    EXPECT_EQ(copy.GetX(), 3);
    EXPECT_EQ(copy.GetY(), 4);
}

TEST(Field, NullStaysNullAsAFigure) {
    EXPECT_EQ(static_cast<ChessFigure*>(Field(1, 1).GetElement()), nullptr);
}

}  // namespace
}  // namespace tolvane

#include "actions/InterAction.h"

#include <gtest/gtest.h>

#include "actions/Scene.h"

namespace tolvane::test {

TEST(InterAction, IsOverAtOnceWhenNothingIsScripted) {
    Troupe troupe;
    ChessFigure3D& pawn = troupe.Place(Player::White, FigureType::Pawn, 4, 3);
    ChessFigure3D& other = troupe.Place(Player::Black, FigureType::Pawn, 5, 4);
    pawn.SetAction(new InterAction(&pawn, &other, fieldWidth));
    const Outcome outcome = Scene(troupe, pawn, &other, {.frameTime = 0.01f}).Play();
    EXPECT_EQ(outcome.endings, 1);
    EXPECT_FLOAT_EQ(outcome.seconds, 0.01f);
    ExpectAtRest(pawn, 4, 3, 0.0f);
    ExpectAtRest(other, 5, 4, 180.0f);
}

}  // namespace tolvane::test

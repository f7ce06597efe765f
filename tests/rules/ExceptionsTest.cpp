#include <gtest/gtest.h>

#include <type_traits>

#include "rules/InvalidMoveException.h"
#include "rules/InvalidMoveTypeException.h"
#include "rules/KingIsCheckException.h"
#include "rules/WrongPlayerException.h"

namespace tolvane {
namespace {

template <typename Thrown>
struct RuleException : testing::Test {};

using Thrown = testing::Types<InvalidMoveException, InvalidMoveTypeException, KingIsCheckException,
                              WrongPlayerException>;
TYPED_TEST_SUITE(RuleException, Thrown);

TYPED_TEST(RuleException, IsCaughtAsAnException) {
    try {
        throw TypeParam("Not so!");
    } catch (const Exception& exception) {
        EXPECT_EQ(exception.GetMessage(), "Not so!");
        EXPECT_EQ(exception.GetErrorNumber(), -1);
    }
}

TYPED_TEST(RuleException, CanCarryANumber) {
    EXPECT_EQ(TypeParam(7, "Not so!").GetErrorNumber(), 7);
    EXPECT_EQ(TypeParam(7, "Not so!").GetMessage(), "Not so!");
}

TYPED_TEST(RuleException, AddsNothingToAnException) {
    EXPECT_EQ(sizeof(TypeParam), sizeof(Exception));
}

// A rook or queen goes on to its next line after the one and gives up after the other.
TEST(InvalidMoveTypeException, IsNoInvalidMoveException) {
    EXPECT_FALSE((std::is_base_of_v<InvalidMoveException, InvalidMoveTypeException>));
    EXPECT_FALSE((std::is_base_of_v<InvalidMoveTypeException, InvalidMoveException>));
    EXPECT_FALSE((std::is_base_of_v<InvalidMoveException, KingIsCheckException>));
}

}  // namespace
}  // namespace tolvane

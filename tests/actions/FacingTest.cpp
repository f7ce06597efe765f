#include "actions/Facing.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>

namespace tolvane::test {

namespace {

struct FacingCase {
    int column;
    int row;
    std::optional<int> white;
    std::optional<int> black;
};

constexpr std::array facingCases{
    FacingCase{-1, 1, 45, -135},  FacingCase{0, 1, std::nullopt, 180},          FacingCase{1, 1, -45, 135},
    FacingCase{-1, 0, 90, -90},   FacingCase{0, 0, std::nullopt, std::nullopt}, FacingCase{1, 0, -90, 90},
    FacingCase{-1, -1, 135, -45}, FacingCase{0, -1, 180, std::nullopt},         FacingCase{1, -1, -135, 45},
};

}  // namespace

TEST(Facing, TurnsByTheDirectionOfTheStepMirroredForBlack) {
    for (const FacingCase& each : facingCases) {
        EXPECT_EQ(TurnTowards(Player::White, each.column, each.row), each.white) << each.column << each.row;
        EXPECT_EQ(TurnTowards(Player::Black, each.column, each.row), each.black) << each.column << each.row;
    }
}

}  // namespace tolvane::test

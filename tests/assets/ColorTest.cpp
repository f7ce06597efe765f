#include "assets/Color.h"

#include <gtest/gtest.h>

namespace tolvane {
namespace {

TEST(Color, HasThreeParts) {
    const Color orange(1.0f, 0.5f, 0.25f);
    EXPECT_EQ(orange.GetRed(), 1.0f);
    EXPECT_EQ(orange.GetGreen(), 0.5f);
    EXPECT_EQ(orange.GetBlue(), 0.25f);
}

TEST(Color, IsBlackByDefault) {
    EXPECT_EQ(Color().GetRed(), 0.0f);
    EXPECT_EQ(Color().GetGreen(), 0.0f);
    EXPECT_EQ(Color().GetBlue(), 0.0f);
}

}  // namespace
}  // namespace tolvane

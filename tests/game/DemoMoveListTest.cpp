#include "game/DemoMoveList.h"

#include <gtest/gtest.h>

namespace tolvane {
namespace {

TEST(DemoMoveList, HandsOutItsMovesInOrder) {
    DemoMoveList list;
    list.Add({{4, 1}, {4, 3}});
    list.Add({{6, 7}, {7, 5}});

    ASSERT_TRUE(list.HasNext());
    const DemoMove first = list.Next();
    EXPECT_EQ(first.GetSource().Compare({4, 1}), 0);
    EXPECT_EQ(first.GetTarget().Compare({4, 3}), 0);
    ASSERT_TRUE(list.HasNext());
    EXPECT_EQ(list.Next().GetTarget().Compare({7, 5}), 0);
    EXPECT_FALSE(list.HasNext());
}

TEST(DemoMoveList, HasNothingToHandOutAtFirst) {
    EXPECT_FALSE(DemoMoveList().HasNext());
}

TEST(DemoMoveList, StartsAgainWhenAMoveIsAdded) {
    DemoMoveList list;
    list.Add({{0, 1}, {0, 2}});
    list.Next();
    list.Add({{1, 1}, {1, 2}});
    EXPECT_EQ(list.Next().GetSource().Compare({0, 1}), 0);
    EXPECT_EQ(list.Next().GetSource().Compare({1, 1}), 0);
    EXPECT_FALSE(list.HasNext());
}

}  // namespace
}  // namespace tolvane

#include "rules/Coordinate.h"

#include <gtest/gtest.h>

namespace tolvane {
namespace {

TEST(Coordinate, NamesAColumnAndARow) {
    const Coordinate place(4, 7);
    EXPECT_EQ(place.GetX(), 4);
    EXPECT_EQ(place.GetY(), 7);
}

TEST(Coordinate, StartsAtZero) {
    EXPECT_EQ(Coordinate().GetX(), 0);
    EXPECT_EQ(Coordinate().GetY(), 0);
}

TEST(Coordinate, HoldsPlacesOffTheBoard) {
    EXPECT_EQ(Coordinate(-3, 12).GetX(), -3);
    EXPECT_EQ(Coordinate(-3, 12).GetY(), 12);
}

TEST(Coordinate, ComparesByColumnThenRow) {
    struct Row {
        Coordinate left;
        Coordinate right;
        int order;
    };
    const Row rows[] = {
        {{2, 5}, {2, 5}, 0},  {{1, 7}, {2, 0}, -1}, {{2, 0}, {1, 7}, 1},
        {{3, 1}, {3, 4}, -1}, {{3, 4}, {3, 1}, 1},  {{-1, 0}, {7, 0}, -1},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(row.left.Compare(row.right), row.order)
            << row.left.GetX() << "," << row.left.GetY() << " and " << row.right.GetX() << ","
            << row.right.GetY();
    }
}

}  // namespace
}  // namespace tolvane

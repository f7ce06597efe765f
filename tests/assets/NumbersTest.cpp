#include "assets/Numbers.h"

#include <gmock/gmock.h>

#include <array>

#include "assets/RandomFloat.h"

namespace tolvane {
namespace {

class RandomNumbers : public ::testing::Test {
protected:
    RandomNumbers() { RestartRandom(); }
};

TEST_F(RandomNumbers, AreTheSameSeriesInEveryRun) {
    const std::array series{NextRandom(), NextRandom(), NextRandom(), NextRandom(), NextRandom()};
    EXPECT_THAT(series, ::testing::ElementsAre(41, 18467, 6334, 26500, 19169));
    RestartRandom();
    EXPECT_EQ(NextRandom(), 41);
}

TEST_F(RandomNumbers, NeverLeaveFifteenBits) {
    for (int i = 0; i < 100000; ++i)
        ASSERT_THAT(NextRandom(), ::testing::AllOf(::testing::Ge(0), ::testing::Le(32767)));
}

TEST_F(RandomNumbers, InARangeReachBothEndsAndNothingElse) {
    std::array<int, 5> counts{};
    for (int i = 0; i < 1000; ++i) {
        const int number = RandomInRange(1, 3);
        ASSERT_THAT(number, ::testing::AllOf(::testing::Ge(1), ::testing::Le(3)));
        ++counts[static_cast<std::size_t>(number)];
    }
    EXPECT_THAT(counts,
                ::testing::ElementsAre(0, ::testing::Gt(250), ::testing::Gt(250), ::testing::Gt(250), 0));
}

TEST_F(RandomNumbers, InARangeOfOneAreThatOneAndStillUseUpANumber) {
    EXPECT_EQ(RandomInRange(7, 7), 7);
    EXPECT_EQ(NextRandom(), 18467);
}

TEST_F(RandomNumbers, AsFloatsRunFromTheLowerToTheUpperEnd) {
    EXPECT_FLOAT_EQ(RandomUpTo(2.0f), 41 * 2.0f / 32767.0f);
    EXPECT_FLOAT_EQ(RandomUnit(), 18467 / 32767.0f);
    EXPECT_FLOAT_EQ(RandomRange(-3.0f, 5.0f), 6334 * 8.0f / 32767.0f - 3.0f);
    EXPECT_FLOAT_EQ(RandomRange(5.0f, 5.0f), 5.0f);
    EXPECT_EQ(NextRandom(), 19169);
}

TEST(RoundTo, KeepsSoManyDecimals) {
    struct Case {
        double value;
        int digits;
        double rounded;
    };
    const Case cases[] = {
        {-0.000004, 5, 0.0}, {0.000006, 5, 0.00001},     {0.5, 0, 1.0},   {-0.5, 0, -1.0},
        {0.0, 5, 0.0},       {1.23456789, 3, 1.235},     {-7.0, 5, -7.0}, {12345.678951, 5, 12345.67895},
        {0.125, 2, 0.13},    {-123456.25, 1, -123456.3},
    };
    for (const Case& row : cases)
        EXPECT_EQ(RoundTo(row.value, row.digits), row.rounded) << row.value << " to " << row.digits;
}

TEST(Sign, TellsWhichSideOfZero) {
    EXPECT_EQ(Sign(-3), -1);
    EXPECT_EQ(Sign(0), 0);
    EXPECT_EQ(Sign(9), 1);
    EXPECT_EQ(Sign(-0.001f), -1);
    EXPECT_EQ(Sign(-0.0f), 0);
    EXPECT_EQ(Sign(0.001), 1);
}

}  // namespace
}  // namespace tolvane

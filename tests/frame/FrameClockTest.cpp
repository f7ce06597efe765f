#include "frame/FrameClock.h"

#include <gtest/gtest.h>

#include "frame/FrameCounter.h"

namespace tolvane {

TEST(FrameClock, MeasuresTheTimeBetweenTwoSteps) {
    FrameClock clock;
    clock.Step(1000);
    clock.Step(1016);
    EXPECT_EQ(clock.ticks, 1016u);
    EXPECT_NEAR(clock.frameTime, 0.016, 1e-12);
}

TEST(FrameClock, TheFirstStepIsAllTheTimeSinceTheStart) {
    FrameClock clock;
    clock.Step(7321);
    EXPECT_DOUBLE_EQ(clock.frameTime, 7321 * 0.001);
}

TEST(FrameClock, ANoTimeStepIsZero) {
    FrameClock clock;
    clock.Step(500);
    clock.Step(500);
    EXPECT_EQ(clock.frameTime, 0.0);
}

TEST(FrameCounter, ShowsZeroUntilTwoSecondsHavePassed) {
    FrameCounter counter;
    for (std::uint32_t ticks = 20; ticks < 2000; ticks += 20)
        counter.Count(ticks);
    EXPECT_EQ(counter.Text(), "0.000000 fps");
}

TEST(FrameCounter, AveragesOverTheTimeItWasShown) {
    FrameCounter counter;
    for (std::uint32_t ticks = 20; ticks <= 2000; ticks += 20)
        counter.Count(ticks);
    EXPECT_EQ(counter.Text(), "50.000000 fps");
    for (std::uint32_t ticks = 2100; ticks <= 4000; ticks += 100)
        counter.Count(ticks);
    EXPECT_EQ(counter.Text(), "10.000000 fps");
}

TEST(FrameCounter, CountsItsFirstValueFromTheStart) {
    FrameCounter counter;
    counter.Count(10000);
    EXPECT_EQ(counter.Text(), "0.100000 fps");
}

TEST(FrameCounter, GoesOnWhenTheClockPassesTheRangeOfItsTicks) {
    FrameCounter counter;
    counter.Count(0x7FFFFFFFu);
    for (std::uint32_t frame = 1; frame <= 20; ++frame)
        counter.Count(0x7FFFFFFFu + 100 * frame);
    EXPECT_EQ(counter.Text(), "10.000000 fps");
}

TEST(FrameCounter, RoundsToTwoDecimals) {
    FrameCounter counter;
    counter.Count(1000);
    counter.Count(2100);
    EXPECT_EQ(counter.Text(), "0.950000 fps");
}

}  // namespace tolvane

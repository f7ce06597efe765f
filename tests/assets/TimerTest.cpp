#include "assets/Timer.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace tolvane {
namespace {

void Wait(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

TEST(Timer, TellsTheSecondsSinceTheLatestTick) {
    Timer timer;
    timer.Tick();
    Wait(30);
    const float seconds = timer.Tick();
    EXPECT_GE(seconds, 0.03f);
    EXPECT_LT(seconds, 5.0f);
    EXPECT_FLOAT_EQ(timer.GetFramesPerSecond(), 1.0f / seconds);
}

TEST(Timer, TicksTwiceAtOnceAreNearlyNothingApart) {
    Timer timer;
    timer.Tick();
    EXPECT_LT(timer.Tick(), 0.01f);
    EXPECT_GT(timer.GetFramesPerSecond(), 100.0f);
}

TEST(Timer, SharesTheLatestTickWithAllOthers) {
    Timer first;
    Timer second;
    first.Tick();
    Wait(30);
    first.Tick();
    EXPECT_LT(second.Tick(), 0.02f);
}

}  // namespace
}  // namespace tolvane

#include "actions/Slices.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <vector>

namespace tolvane::test {

namespace {

std::vector<float> SlicesOf(float frameTime) {
    std::vector<float> slices;
    InSlices(frameTime, [&slices](float slice) {
        slices.push_back(slice);
        return false;
    });
    return slices;
}

}  // namespace

TEST(Slices, UseAFramesTimeUpInSlicesOfAMillisecondAtMost) {
    for (const float frameTime : {0.0004f, 0.001f, 1.0f / 120.0f, 1.0f / 60.0f, 0.05f, 0.5f, 7.0f}) {
        const std::vector<float> slices = SlicesOf(frameTime);
        EXPECT_LE(*std::max_element(slices.begin(), slices.end()), 0.001001f) << frameTime;
        EXPECT_GT(*std::min_element(slices.begin(), slices.end()), 0.0f) << frameTime;
        EXPECT_NEAR(std::accumulate(slices.begin(), slices.end(), 0.0), frameTime, 1e-5) << frameTime;
    }
    EXPECT_EQ(SlicesOf(1.0f / 60.0f).size(), 17u);
}

TEST(Slices, GiveAFrameWithoutTimeOneCallWithoutTime) {
    EXPECT_THAT(SlicesOf(0.0f), testing::ElementsAre(0.0f));
}

TEST(Slices, StopAtArrivalAndReportIt) {
    int calls = 0;
    EXPECT_TRUE(InSlices(0.5f, [&calls](float) { return ++calls == 3; }));
    EXPECT_EQ(calls, 3);
    EXPECT_FALSE(InSlices(0.002f, [](float) { return false; }));
    EXPECT_TRUE(InSlices(0.0f, [](float) { return true; }));
}

}  // namespace tolvane::test

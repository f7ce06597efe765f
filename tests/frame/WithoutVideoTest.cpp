// Where the video layer finds no driver each step says what it misses, and the program goes on.

#include <SDL.h>
#include <gmock/gmock.h>

#include <cstdlib>
#include <memory>
#include <string>

#include "frame/Engine3D.h"
#include "support/TypedAnswer.h"

namespace tolvane {
namespace {

using ::testing::HasSubstr;
using ::testing::MatchesRegex;

class WithoutVideo : public ::testing::Test {
protected:
    WithoutVideo() {
        setenv("SDL_VIDEODRIVER", "none of that name", 1);
        setenv("SDL_AUDIODRIVER", "dummy", 1);
        const test::TypedAnswer window("\n");
        ::testing::internal::CaptureStdout();
        ::testing::internal::CaptureStderr();
        engine = std::make_unique<Engine3D>(1024, 768, 32);
        errors = ::testing::internal::GetCapturedStderr();
        printed = ::testing::internal::GetCapturedStdout();
    }

    std::unique_ptr<Engine3D> engine;
    std::string printed;
    std::string errors;
};

TEST_F(WithoutVideo, EveryStepOfTheStartSaysWhatFailed) {
    EXPECT_THAT(errors, MatchesRegex("Video initialization failed: [^\n]+\n"
                                     "Video query failed: [^\n]+\n"
                                     "Video mode set failed: [^\n]+\n"));
    EXPECT_THAT(printed, HasSubstr("****************\nGLEW_INIT: FAILED!!!!\n****************\n\n"));
    EXPECT_EQ(SDL_GetVideoSurface(), nullptr);
}

TEST_F(WithoutVideo, AResizeSaysThatItHasNoSurface) {
    SDL_Event resize{};
    resize.type = SDL_VIDEORESIZE;
    resize.resize.w = 640;
    resize.resize.h = 480;
    ::testing::internal::CaptureStderr();
    EXPECT_FALSE(engine->Dispatch(resize));
    EXPECT_THAT(::testing::internal::GetCapturedStderr(),
                MatchesRegex("Could not get a surface after resize: [^\n]+\n"));
}

}  // namespace
}  // namespace tolvane

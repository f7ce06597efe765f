#include "frame/Engine3D.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>

#include "assets/Gl.h"
#include "frame/RecordingGame.h"
#include "scene/DrawAble.h"
#include "support/GlWindow.h"
#include "support/TypedAnswer.h"

namespace tolvane {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

// The engine, with an answer typed at the console.
class Started {
public:
    explicit Started(const std::string& answer) {
        const test::TypedAnswer typed(answer);
        printed = test::PrintedBy([&] { engine = std::make_unique<Engine3D>(1024, 768, 32); });
    }

    std::unique_ptr<Engine3D> engine;
    std::string printed;
};

bool IsFullscreen() {
    return (SDL_GetVideoSurface()->flags & SDL_FULLSCREEN) != 0;
}

bool IsEnabled(GLenum capability) {
    return glIsEnabled(capability) == GL_TRUE;
}

SDL_Event Key(SDLKey symbol) {
    SDL_Event event{};
    event.type = SDL_KEYDOWN;
    event.key.keysym.sym = symbol;
    return event;
}

// Counts the frames in which it is drawn.
class FrameMark final : public DrawAble {
public:
    void Draw(int, bool, bool, bool, const Vertex*, const Vertex*) override { ++frames; }

    int frames = 0;
};

SDL_Event Resized(int width, int height) {
    SDL_Event event{};
    event.type = SDL_VIDEORESIZE;
    event.resize.w = width;
    event.resize.h = height;
    return event;
}

}  // namespace

TEST(Engine3D, AsksItsQuestionAndOpensAWindow) {
    const Started started("\n");
    EXPECT_THAT(started.printed, StartsWith("Press 'Y' to run Game in Fullscreen Mode\n"));
    EXPECT_THAT(started.printed, HasSubstr("****************\nGLEW_INIT: SUCCESS\n****************\n\n"));
    ASSERT_NE(SDL_GetVideoSurface(), nullptr);
    EXPECT_EQ(SDL_GetVideoSurface()->w, 1024);
    EXPECT_EQ(SDL_GetVideoSurface()->h, 768);
    char* caption = nullptr;
    SDL_WM_GetCaption(&caption, nullptr);
    EXPECT_STREQ(caption, "Tolvane");
}

TEST(Engine3D, OnlyAPlainYMeansFullScreen) {
    for (const char* const answer : {"", "\n", "n\n", "yes\n", "Yes\n", "YY\n", " y\n", "y \n", "j\n"}) {
        const Started started(answer);
        EXPECT_FALSE(IsFullscreen()) << answer;
    }
    for (const char* const answer : {"y\n", "Y\n", "y"}) {
        const Started started(answer);
        EXPECT_TRUE(IsFullscreen()) << answer;
        EXPECT_EQ(started.engine->GetWidth(), 1024);
        EXPECT_EQ(started.engine->GetHeight(), 768);
    }
    const Started windowed("\n");
}

TEST(Engine3D, SetsUpTheStateOfGl) {
    const Started started("\n");
    for (const GLenum capability : {GL_DEPTH_TEST, GL_CULL_FACE, GL_POINT_SMOOTH, GL_LINE_SMOOTH,
                                    GL_POLYGON_SMOOTH, GL_TEXTURE_2D, GL_LIGHTING})
        EXPECT_TRUE(IsEnabled(capability)) << capability;
    GLint value = 0;
    glGetIntegerv(GL_FRONT_FACE, &value);
    EXPECT_EQ(value, GL_CW);
    glGetIntegerv(GL_DEPTH_FUNC, &value);
    EXPECT_EQ(value, GL_LEQUAL);
    glGetIntegerv(GL_SHADE_MODEL, &value);
    EXPECT_EQ(value, GL_SMOOTH);
    glGetIntegerv(GL_LIGHT_MODEL_LOCAL_VIEWER, &value);
    EXPECT_EQ(value, 1);
    glGetIntegerv(GL_LIGHT_MODEL_COLOR_CONTROL, &value);
    EXPECT_EQ(value, GL_SEPARATE_SPECULAR_COLOR);
    glGetIntegerv(GL_STENCIL_BITS, &value);
    EXPECT_EQ(value, 8);
}

TEST(Engine3D, ASoftwareRendererGetsNeitherMultisamplingNorAnAccumulationBuffer) {
    const Started started("\n");
    ASSERT_THAT(reinterpret_cast<const char*>(glGetString(GL_RENDERER)), HasSubstr("pipe"));
    for (const GLenum size : {GL_SAMPLES, GL_ACCUM_RED_BITS}) {
        GLint granted = -1;
        glGetIntegerv(size, &granted);
        EXPECT_EQ(granted, 0) << size;
    }
}

TEST(Engine3D, ASoftwareRendererIsAskedForQuickFilteringUnlessThePlayerHasSetItsSwitches) {
    constexpr const char* switches = "GALLIVM_PERF";
    unsetenv(switches);
    { const Started started("\n"); }
    EXPECT_STREQ(std::getenv(switches), "brilinear,rho_approx");
    setenv(switches, "no_quad_lod", 1);
    { const Started started("\n"); }
    EXPECT_STREQ(std::getenv(switches), "no_quad_lod");
    unsetenv(switches);
}

TEST(Engine3D, AWindowOfHeightZeroCountsAsOnePixelHigh) {
    const Started started("\n");
    started.engine->Resize(200, 0);
    GLint viewport[4] = {};
    glGetIntegerv(GL_VIEWPORT, viewport);
    EXPECT_THAT(viewport, ElementsAre(0, 0, 200, 1));
    GLfloat projection[16] = {};
    glGetFloatv(GL_PROJECTION_MATRIX, projection);
    EXPECT_NEAR(projection[5] / projection[0], 200.0f, 0.1f);
}

TEST(Engine3D, AResizeKeepsTheSizeThatTheWindowWasOpenedWith) {
    const Started started("\n");
    const std::string printed = test::PrintedBy([&] { started.engine->Dispatch(Resized(640, 480)); });
    EXPECT_EQ(printed, "test\n");
    EXPECT_EQ(started.engine->GetWidth(), 1024);
    EXPECT_EQ(started.engine->GetHeight(), 768);
    EXPECT_EQ(SDL_GetVideoSurface()->w, 640);
    GLint viewport[4] = {};
    glGetIntegerv(GL_VIEWPORT, viewport);
    EXPECT_THAT(viewport, ElementsAre(0, 0, 640, 480));
}

TEST(Engine3D, TabTogglesFullScreenAndKeepsTheContext) {
    const Started started("\n");
    GLuint texture = 0;
    glGenTextures(1, &texture);
    glBindTexture(GL_TEXTURE_2D, texture);
    const std::string printed =
        test::PrintedBy([&] { EXPECT_FALSE(started.engine->Dispatch(Key(SDLK_TAB))); });
    EXPECT_EQ(printed, "toggle Fullscreen: 1\n");
    EXPECT_TRUE(glIsTexture(texture));
    test::PrintedBy([&] { started.engine->Dispatch(Key(SDLK_TAB)); });
}

TEST(Engine3D, LightingAndWireframeSurviveTheFullScreenToggle) {
    const Started started("\n");
    const auto press = [&](SDLKey key) { test::PrintedBy([&] { started.engine->Dispatch(Key(key)); }); };
    press(SDLK_l);
    press(SDLK_F3);
    press(SDLK_TAB);
    press(SDLK_TAB);
    EXPECT_FALSE(IsEnabled(GL_LIGHTING));
    GLint modes[2] = {};
    glGetIntegerv(GL_POLYGON_MODE, modes);
    EXPECT_THAT(modes, ElementsAre(GL_LINE, GL_LINE));
    press(SDLK_l);
    press(SDLK_F3);
    EXPECT_TRUE(IsEnabled(GL_LIGHTING));
    glGetIntegerv(GL_POLYGON_MODE, modes);
    EXPECT_THAT(modes, ElementsAre(GL_FILL, GL_FILL));
}

TEST(Engine3D, KeysAndTheCloseButtonQuitAndNothingElseDoes) {
    const Started started("\n");
    EXPECT_TRUE(started.engine->Dispatch(Key(SDLK_ESCAPE)));
    EXPECT_TRUE(started.engine->Dispatch(Key(SDLK_q)));
    SDL_Event event{};
    event.type = SDL_QUIT;
    EXPECT_TRUE(started.engine->Dispatch(event));
    for (const Uint8 type : {SDL_MOUSEMOTION, SDL_MOUSEBUTTONDOWN, SDL_ACTIVEEVENT, SDL_VIDEOEXPOSE}) {
        event.type = type;
        EXPECT_FALSE(started.engine->Dispatch(event));
    }
}

TEST(Engine3D, HandlesWhatWaitsBehindAQuitKeyAndDrawsOneMoreFrame) {
    {
        const Started started("\n");
        test::RecordingGame game;
        FrameMark mark;
        started.engine->SetGame(&game);
        started.engine->AddOverlay(&mark);
        for (const SDLKey symbol : {SDLK_q, SDLK_SPACE, SDLK_1}) {
            SDL_Event event = Key(symbol);
            ASSERT_EQ(SDL_PushEvent(&event), 0);
        }
        const std::string printed = test::PrintedBy([&] { started.engine->MainLoop(); });
        EXPECT_EQ(printed.substr(0, printed.find("MD2")),
                  "loading skybox-texture:  1  2  3  4  5  6 \ntextues loaded\n\n");
        EXPECT_THAT(game.calls, ElementsAre("StartDemo", "AdvancePawn 4"));
        EXPECT_EQ(mark.frames, 1);
        EXPECT_EQ(SDL_WasInit(SDL_INIT_VIDEO), 0u) << "the window is closed";
    }
    const Started windowForTheOthers("\n");
}

TEST(Engine3D, KeepsTheAddressesOfItsStores) {
    const Started started("\n");
    MD2_Store* const models = started.engine->GetModels();
    TextureHandler* const textures = started.engine->GetTextures();
    std::string printed = test::PrintedBy([&] { started.engine->SetVideoMode(1024, 768, 32); });
    EXPECT_EQ(started.engine->GetModels(), models);
    EXPECT_EQ(started.engine->GetTextures(), textures);
    EXPECT_EQ(textures->GetTextureId("textures/none.tga"), 0xFFFFFFFFu);
}

}  // namespace tolvane

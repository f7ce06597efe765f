#include "frame/InputHandler.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "assets/Gl.h"
#include "frame/FrameClock.h"
#include "frame/RecordingGame.h"
#include "frame/Renderer3D.h"
#include "frame/View3D.h"
#include "scene/BoardSelectionGrid.h"
#include "support/GlWindow.h"

namespace tolvane {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class InputHandlerUsed : public ::testing::Test {
protected:
    void SetUp() override {
        renderer.SetView(&view);
        renderer.SetGame(&game);
        renderer.SetSelectionGrid(&grid);
        view.SetPerspective(60.0, 4.0 / 3.0, 0.1, 400.0);
        view.MoveY(1.0f);
        view.Pitch(-40.0f);
    }

    void TearDown() override {
        SDL_ShowCursor(1);
        glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
        glDisable(GL_LIGHTING);
    }

    int Press(SDLKey symbol) {
        const SDL_keysym key{.scancode = 0, .sym = symbol, .mod = KMOD_NONE, .unicode = 0};
        return input.OnKeyDown(&key);
    }

    int Release(SDLKey symbol) {
        const SDL_keysym key{.scancode = 0, .sym = symbol, .mod = KMOD_NONE, .unicode = 0};
        return input.OnKeyUp(&key);
    }

    std::string PrintedByPressing(SDLKey symbol) {
        return test::PrintedBy([&] { Press(symbol); });
    }

    Vertex EyeAfterASecond() {
        view.Update(1.0f);
        return *view.GetPosition();
    }

    View3D view;
    Renderer3D renderer;
    BoardSelectionGrid grid{3.5f, 3.5f};
    test::RecordingGame game;
    InputHandler input{&view, &renderer, &game};
};

}  // namespace

TEST_F(InputHandlerUsed, EscapeAndQQuit) {
    EXPECT_EQ(Press(SDLK_ESCAPE), InputHandler::keyQuits);
    EXPECT_EQ(Press(SDLK_q), InputHandler::keyQuits);
}

TEST_F(InputHandlerUsed, TabAsksForFullScreen) {
    EXPECT_EQ(Press(SDLK_TAB), InputHandler::keyTogglesFullscreen);
}

TEST_F(InputHandlerUsed, SpaceAsksForTheDemo) {
    EXPECT_EQ(Press(SDLK_SPACE), InputHandler::keyDone);
    EXPECT_THAT(game.calls, ElementsAre("StartDemo"));
}

TEST_F(InputHandlerUsed, DigitsChooseTheFigureInTheOrderOfThePrompt) {
    for (const SDLKey key : {SDLK_1, SDLK_2, SDLK_3, SDLK_4})
        Press(key);
    EXPECT_THAT(game.calls, ElementsAre("AdvancePawn 4", "AdvancePawn 1", "AdvancePawn 2", "AdvancePawn 3"));
}

TEST_F(InputHandlerUsed, OtherKeysDoNothing) {
    for (const SDLKey key : {SDLK_F1, SDLK_F4, SDLK_F5, SDLK_5, SDLK_9, SDLK_0, SDLK_RETURN, SDLK_z})
        EXPECT_EQ(Press(key), InputHandler::keyDone);
    EXPECT_THAT(game.calls, IsEmpty());
}

TEST_F(InputHandlerUsed, EachCameraKeyMovesForAsLongAsItIsHeld) {
    struct Row {
        SDLKey key;
        Vertex moved;  // sign of the eye's motion
    };
    const Row rows[] = {
        {SDLK_UP, {0, 0, -1}},    {SDLK_DOWN, {0, 0, 1}}, {SDLK_LEFT, {-1, 0, 0}}, {SDLK_RIGHT, {1, 0, 0}},
        {SDLK_PAGEUP, {0, 1, 0}}, {SDLK_w, {0, 1, -1}},   {SDLK_s, {0, -1, 1}},    {SDLK_a, {-1, 0, -1}},
        {SDLK_d, {1, 0, -1}},     {SDLK_c, {0, -1, -1}},  {SDLK_x, {0, 1, 1}},
    };
    const auto sign = [](float n) { return n > 1e-4f ? 1.0f : n < -1e-4f ? -1.0f : 0.0f; };
    for (const Row& row : rows) {
        SCOPED_TRACE(SDL_GetKeyName(row.key));
        view = View3D();
        view.MoveY(1.0f);
        view.Pitch(-40.0f);
        const Vertex before = *view.GetPosition();
        Press(row.key);
        const Vertex after = EyeAfterASecond();
        EXPECT_EQ(sign(after.x - before.x), row.moved.x);
        EXPECT_EQ(sign(after.y - before.y), row.moved.y);
        EXPECT_EQ(sign(after.z - before.z), row.moved.z);

        Release(row.key);
        const Vertex rest = EyeAfterASecond();
        EXPECT_EQ(rest.x, after.x);
        EXPECT_EQ(rest.y, after.y);
        EXPECT_EQ(rest.z, after.z);
    }
}

TEST_F(InputHandlerUsed, PageDownLowersTheCentre) {
    view.MoveY(6.0f);
    const float before = view.GetPosition()->y;
    Press(SDLK_PAGEDOWN);
    EXPECT_NEAR(EyeAfterASecond().y, before - 4.5f, 1e-3f);
}

TEST_F(InputHandlerUsed, ReleasingOneOfTwoHeldKeysLeavesTheOtherActing) {
    Press(SDLK_LEFT);
    Press(SDLK_RIGHT);
    EXPECT_EQ(EyeAfterASecond().x, 0.0f);
    Release(SDLK_LEFT);
    EXPECT_NEAR(EyeAfterASecond().x, 4.5f, 1e-4f);
}

TEST_F(InputHandlerUsed, AReleaseWithoutAPressIsHarmless) {
    const Vertex before = *view.GetPosition();
    EXPECT_EQ(Release(SDLK_LEFT), 0);
    EXPECT_EQ(Release(SDLK_F9), 0);
    EXPECT_EQ(EyeAfterASecond().x, before.x);
}

TEST_F(InputHandlerUsed, SwitchesSayWhatTheyDid) {
    struct Row {
        SDLKey key;
        std::vector<const char*> lines;  // press by press
    };
    const Row rows[] = {
        {SDLK_l, {"Disable Lighting\n", "Enable Lighting\n", "Disable Lighting\n"}},
        {SDLK_F2, {"", "", ""}},
        {SDLK_F3, {"", ""}},
        {SDLK_F6, {"DRAW_MODE: VERTEX_ARRAY\n", "DRAW_MODE: TRIANGLES\n", "DRAW_MODE: VBO\n"}},
        {SDLK_F7, {"DISPLAY_LIST: OFF\n", "DISPLAY_LIST: ON\n"}},
        {SDLK_F8, {"FRUSTUM_CULLING: OFF\n", "FRUSTUM_CULLING: ON\n"}},
        {SDLK_F9, {"BLENDING: OFF\n", "BLENDING: ON\n"}},
    };
    for (const Row& row : rows)
        for (const char* const line : row.lines)
            EXPECT_EQ(PrintedByPressing(row.key), line) << SDL_GetKeyName(row.key);
}

TEST_F(InputHandlerUsed, SwitchesReachTheRenderer) {
    EXPECT_FALSE(renderer.GetShowFps());
    Press(SDLK_F2);
    EXPECT_TRUE(renderer.GetShowFps());
    test::PrintedBy([&] {
        Press(SDLK_F6);
        Press(SDLK_F7);
        Press(SDLK_F8);
        Press(SDLK_F9);
    });
    EXPECT_EQ(renderer.GetDrawMode(), 1);
    EXPECT_FALSE(renderer.GetUseDisplayLists());
    EXPECT_FALSE(renderer.frustumCulling);
    EXPECT_FALSE(renderer.blending);
}

TEST_F(InputHandlerUsed, LightingActsOnGlAtOnce) {
    glEnable(GL_LIGHTING);
    PrintedByPressing(SDLK_l);
    EXPECT_FALSE(glIsEnabled(GL_LIGHTING));
    PrintedByPressing(SDLK_l);
    EXPECT_TRUE(glIsEnabled(GL_LIGHTING));
}

TEST_F(InputHandlerUsed, WireframeDrawsBothFacesAsLinesUntilToggledBack) {
    GLint modes[2] = {};
    Press(SDLK_F3);
    glGetIntegerv(GL_POLYGON_MODE, modes);
    EXPECT_EQ(modes[0], GL_LINE);
    EXPECT_EQ(modes[1], GL_LINE);
    Press(SDLK_F3);
    glGetIntegerv(GL_POLYGON_MODE, modes);
    EXPECT_EQ(modes[0], GL_FILL);
    EXPECT_EQ(modes[1], GL_FILL);
}

TEST_F(InputHandlerUsed, AMouseReleaseOverAFieldPicksIt) {
    EXPECT_EQ(input.OnMouseUp(test::GlWindow::width / 2 + 20, test::GlWindow::height / 2 + 10), 0);
    EXPECT_THAT(game.calls, ElementsAre("OnElementPicked 4,3"));
}

TEST_F(InputHandlerUsed, AMouseReleaseOverNothingIsIgnored) {
    input.OnMouseUp(5, 5);
    EXPECT_THAT(game.calls, IsEmpty());
}

TEST_F(InputHandlerUsed, ADisabledMousePicksNothingAndHidesItsCursor) {
    input.SetMouseEnabled(false);
    EXPECT_EQ(SDL_ShowCursor(-1), 0);
    frameClock = FrameClock();
    input.OnMouseUp(test::GlWindow::width / 2 + 20, test::GlWindow::height / 2 + 10);
    EXPECT_THAT(game.calls, IsEmpty());
    EXPECT_EQ(frameClock.ticks, 0u) << "no step of the clock is spent";

    input.SetMouseEnabled(true);
    EXPECT_EQ(SDL_ShowCursor(-1), 1);
    input.OnMouseUp(test::GlWindow::width / 2 + 20, test::GlWindow::height / 2 + 10);
    EXPECT_EQ(game.calls.size(), 1u);
}

}  // namespace tolvane

#include "frame/Renderer3D.h"

#include <SDL.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <utility>

#include "assets/Gl.h"
#include "frame/FrameClock.h"
#include "frame/FrameCounter.h"
#include "frame/RecordingGame.h"
#include "frame/View3D.h"
#include "scene/BoardSelectionGrid.h"
#include "support/GlWindow.h"

namespace tolvane {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A figure of the tests: an upright square that notes what the renderer asks of it.
class Probe final : public Element3D {
public:
    Probe(unsigned int atColumn, unsigned int atRow, std::vector<Probe*>& order)
        : Element3D(atColumn, atRow), drawOrder(&order) {
        position = {-12.25f + 3.5f * static_cast<float>(atColumn), 0.0f,
                    12.25f - 3.5f * static_cast<float>(atRow)};
        boundRadius = 1.5f;
    }

    void Draw(int renderMode, bool useDisplayLists, bool selectionPass, bool blending, const Vertex* eye,
              const Vertex* light) override {
        drawOrder->push_back(this);
        drawnMode = renderMode;
        drawnWithLists = useDisplayLists;
        drawnInSelection = selectionPass;
        drawnBlended = blending;
        drawnEye = eye;
        drawnLight = light;
        ApplyStandardTransform();
        glDisable(GL_CULL_FACE);
        glRectf(-1.0f, 0.0f, 1.0f, 3.0f);
        glEnable(GL_CULL_FACE);
    }
    void Update(int, float dt) override { updates.push_back(dt); }
    bool UpdateEffects(float dt, const Vertex*) override {
        effects.push_back(dt);
        return scriptEnds;
    }

    void SetBusy(bool on) { busy = on; }

    bool scriptEnds = false;
    std::vector<float> updates;
    std::vector<float> effects;
    int drawnMode = -1;
    bool drawnWithLists = false;
    bool drawnInSelection = false;
    bool drawnBlended = false;
    const Vertex* drawnEye = nullptr;
    const Vertex* drawnLight = nullptr;

private:
    std::vector<Probe*>* drawOrder;
};

// A grid that notes how many objects had been drawn before it.
class ProbeBoard final : public Board3D {
public:
    explicit ProbeBoard(const std::vector<Probe*>& order) : drawOrder(&order) {
        minX = minZ = -14.0f;
        maxX = maxZ = 10.5f;
    }
    void Draw(int, bool, bool, bool, const Vertex*, const Vertex*) override {
        drawnAfter.push_back(drawOrder->size());
    }
    void Update(int, float) override {}
    Field3D* GetField(unsigned int) override { return nullptr; }

    std::vector<std::size_t> drawnAfter;

private:
    const std::vector<Probe*>* drawOrder;
};

class Renderer3DUsed : public ::testing::Test {
protected:
    void SetUp() override {
        renderer.SetView(&view);
        renderer.SetGame(&game);
        renderer.SetSelectionGrid(&grid);
        glViewport(0, 0, test::GlWindow::width, test::GlWindow::height);
        view.SetPerspective(60.0, 4.0 / 3.0, 0.1, 400.0);
        view.MoveY(1.0f);
        view.Pitch(-40.0f);
        view.ApplyView();
        frameCounter = FrameCounter();
    }

    Probe& Add(unsigned int column, unsigned int row) {
        probes.push_back(std::make_unique<Probe>(column, row, drawn));
        renderer.AddDrawable(probes.back().get());
        return *probes.back();
    }

    void Scene(float seconds) {
        frameClock.frameTime = seconds;
        renderer.UpdateScene(view.GetPosition());
        drawn.clear();
        renderer.DrawScene(false, view.GetPosition(), nullptr);
    }

    test::Picture Frame() {
        renderer.RenderFrame();
        return test::ReadPicture();  // the software renderer keeps the back buffer when it swaps
    }

    // Where a point of the world lies in the window, from its top left.
    std::pair<int, int> Place(const Vertex& point) {
        GLdouble modelview[16];
        GLdouble projection[16];
        GLint viewport[4];
        glGetDoublev(GL_MODELVIEW_MATRIX, modelview);
        glGetDoublev(GL_PROJECTION_MATRIX, projection);
        glGetIntegerv(GL_VIEWPORT, viewport);
        GLdouble x = 0;
        GLdouble y = 0;
        GLdouble z = 0;
        gluProject(point.x, point.y, point.z, modelview, projection, viewport, &x, &y, &z);
        return {static_cast<int>(x), viewport[3] - static_cast<int>(y)};
    }

    Element3D* PickAt(const Vertex& point) {
        const auto [x, y] = Place(point);
        return renderer.Pick(x, y);
    }

    View3D view;
    Renderer3D renderer;
    BoardSelectionGrid grid{3.5f, 3.5f};
    test::RecordingGame game;
    std::vector<Probe*> drawn;
    std::vector<std::unique_ptr<Probe>> probes;
};

}  // namespace

TEST_F(Renderer3DUsed, DrawsTheFarthestFirst) {
    Probe& near = Add(0, 0);
    Probe& far = Add(0, 7);
    Probe& middle = Add(0, 4);
    Scene(0.0f);
    EXPECT_THAT(drawn, ElementsAre(&far, &middle, &near));
}

TEST_F(Renderer3DUsed, HandsItsSwitchesToEveryDraw) {
    Probe& probe = Add(3, 3);
    renderer.blending = false;
    renderer.SetDrawMode(2);
    renderer.SetUseDisplayLists(false);
    Scene(0.0f);
    EXPECT_EQ(probe.drawnMode, 2);
    EXPECT_FALSE(probe.drawnWithLists);
    EXPECT_FALSE(probe.drawnBlended);
    EXPECT_FALSE(probe.drawnInSelection);
    EXPECT_EQ(probe.drawnEye, view.GetPosition());
}

TEST_F(Renderer3DUsed, ABusyFigureComesLastAndRunsItsScript) {
    Probe& busy = Add(0, 7);
    Probe& idle = Add(0, 0);
    busy.SetBusy(true);
    Scene(0.25f);
    EXPECT_THAT(drawn, ElementsAre(&idle, &busy));
    EXPECT_EQ(busy.distance, -1.0f);
    EXPECT_THAT(busy.effects, ElementsAre(0.25f));
    EXPECT_THAT(idle.effects, IsEmpty());
    EXPECT_THAT(game.calls, IsEmpty());
}

TEST_F(Renderer3DUsed, ABusyBoardSortsByItsTrueDistance) {
    Probe& board = Add(0, 7);
    Probe& idle = Add(0, 0);
    board.SetBusy(true);
    board.skipWhenOutside = true;
    Scene(0.0f);
    EXPECT_THAT(drawn, ElementsAre(&board, &idle));
}

TEST_F(Renderer3DUsed, TellsTheGameThatAScriptHasEnded) {
    Probe& busy = Add(6, 2);
    busy.SetBusy(true);
    busy.scriptEnds = true;
    Scene(0.1f);
    EXPECT_THAT(game.calls, ElementsAre("OnActionFinished 6,2"));
}

TEST_F(Renderer3DUsed, AFadedFigureNeitherUpdatesNorDraws) {
    Probe& faded = Add(3, 3);
    faded.SetBusy(true);
    Scene(0.1f);
    const float before = faded.distance;
    faded.active = false;
    faded.effects.clear();
    for (int i = 0; i < 10; ++i)
        Scene(0.1f);
    EXPECT_THAT(drawn, IsEmpty());
    EXPECT_THAT(faded.effects, IsEmpty());
    EXPECT_EQ(faded.distance, before);
    renderer.frustumCulling = false;
    Scene(0.1f);
    EXPECT_THAT(drawn, IsEmpty());
}

TEST_F(Renderer3DUsed, LeavesOutWhatIsOutsideTheView) {
    Probe& outside = Add(3, 3);
    outside.position = {100.0f, 0.0f, 0.0f};
    Scene(0.0f);
    EXPECT_THAT(drawn, IsEmpty());

    outside.SetBusy(true);
    Scene(0.0f);
    EXPECT_THAT(drawn, ElementsAre(&outside)) << "a script must go on";

    outside.skipWhenOutside = true;
    Scene(0.0f);
    EXPECT_THAT(drawn, IsEmpty());

    renderer.frustumCulling = false;
    Scene(0.0f);
    EXPECT_THAT(drawn, ElementsAre(&outside));
    outside.skipWhenOutside = false;
    outside.SetBusy(false);
    Scene(0.0f);
    EXPECT_THAT(drawn, ElementsAre(&outside));
}

TEST_F(Renderer3DUsed, TheBoundsOffsetAlongZServesForTheHeightToo) {
    Probe& probe = Add(3, 3);
    probe.boundCentre = {0.0f, 500.0f, 0.0f};
    Scene(0.0f);
    EXPECT_THAT(drawn, ElementsAre(&probe));
    probe.boundCentre = {0.0f, 0.0f, 60.0f};
    Scene(0.0f);
    EXPECT_THAT(drawn, IsEmpty());
}

TEST_F(Renderer3DUsed, AnimatesEachDrawableOnceInFiveFrames) {
    for (unsigned int row = 0; row < 5; ++row)
        Add(3, 7 - row);  // the list is sorted already: slots 0, 1, 2, 3 and 0 again
    for (int frame = 0; frame < 25; ++frame)
        Scene(0.25f);
    for (const auto& probe : probes)
        EXPECT_EQ(probe->updates.size(), 5u);
    for (const auto& probe : probes)
        EXPECT_EQ(probe->updates.back(), 1.0f) << "four frames' time in five frames";
}

TEST_F(Renderer3DUsed, TheGridIsDrawnAfterAnEmptyScene) {
    renderer.RenderFrame();
    grid.SetVisible(false);
    const test::Picture without = Frame();
    grid.SetVisible(true);
    const test::Picture with = Frame();
    EXPECT_GT(with.CountDifferences(without, 10), 10000);
}

TEST_F(Renderer3DUsed, TheGridGoesUnderTheLastObjectOnlyWhereViewerAndObjectStandBesideTheBoard) {
    struct Row {
        float eyeX;
        float objectX;
        bool gridFirst;
    };
    const Row rows[] = {{20.0f, 16.0f, true},   {20.0f, -16.0f, true}, {-20.0f, 16.0f, true},
                        {-20.0f, -16.0f, true}, {0.0f, 16.0f, false},  {20.0f, 0.0f, false},
                        {0.0f, 0.0f, false},    {14.5f, 10.6f, true},  {10.4f, 16.0f, false},
                        {20.0f, 10.4f, false}};
    renderer.frustumCulling = false;
    ProbeBoard board(drawn);
    renderer.SetSelectionGrid(&board);
    Probe& far = Add(3, 7);
    Probe& last = Add(3, 3);
    for (const Row& row : rows) {
        SCOPED_TRACE(::testing::Message() << "eye " << row.eyeX << ", object " << row.objectX);
        last.position.x = row.objectX;
        const Vertex eye{row.eyeX, 20.0f, 20.0f};
        last.SetBusy(true);  // busy, so that it is the last whatever the distance
        frameClock.frameTime = 0.0;
        renderer.UpdateScene(&eye);
        drawn.clear();
        board.drawnAfter.clear();
        renderer.DrawScene(false, &eye, nullptr);
        EXPECT_THAT(drawn, ElementsAre(&far, &last));
        EXPECT_THAT(board.drawnAfter, ElementsAre(row.gridFirst ? 1u : 2u));

        board.drawnAfter.clear();
        drawn.clear();
        renderer.DrawScene(true, nullptr, nullptr);
        EXPECT_THAT(board.drawnAfter, ElementsAre(2u)) << "while picking it always comes last";
    }
    renderer.SetSelectionGrid(&grid);
}

TEST_F(Renderer3DUsed, DrawsLightAndSkyFirstAndHandsTheLightsPositionOn) {
    Probe& figure = Add(3, 3);
    Probe sun(0, 0, drawn);
    Probe sky(1, 0, drawn);
    renderer.SetLight(&sun);
    renderer.SetSkybox(&sky);
    renderer.RenderFrame();
    EXPECT_THAT(drawn, ElementsAre(&sun, &sky, &figure));
    EXPECT_EQ(sun.drawnEye, view.GetPosition());
    EXPECT_EQ(sun.drawnLight, sun.GetPosition());
    EXPECT_EQ(sky.drawnEye, nullptr);
    EXPECT_EQ(sky.drawnLight, nullptr);
    EXPECT_EQ(figure.drawnEye, view.GetPosition());
    EXPECT_EQ(figure.drawnLight, sun.GetPosition());
}

TEST_F(Renderer3DUsed, ARemovalWaitsForTheEndOfTheFrame) {
    Probe& first = Add(0, 0);
    Probe& second = Add(1, 0);
    renderer.RemoveDrawable(&first);
    EXPECT_EQ(renderer.GetSceneList().size(), 2u);
    renderer.RenderFrame();
    EXPECT_THAT(renderer.GetSceneList(), ElementsAre(&second));
}

TEST_F(Renderer3DUsed, OfTwoRemovalsInAFrameOnlyTheSecondTakesEffect) {
    Probe& first = Add(0, 0);
    Probe& second = Add(1, 0);
    renderer.RemoveDrawable(&first);
    renderer.RemoveDrawable(&second);
    renderer.RenderFrame();
    EXPECT_THAT(renderer.GetSceneList(), ElementsAre(&first));
}

TEST_F(Renderer3DUsed, ARemovalOfWhatIsNotListedStaysPending) {
    Probe& first = Add(0, 0);
    Probe later(1, 1, drawn);
    renderer.RemoveDrawable(&later);
    renderer.RenderFrame();
    renderer.AddDrawable(&later);
    renderer.RenderFrame();
    EXPECT_THAT(renderer.GetSceneList(), ElementsAre(&first));
}

TEST_F(Renderer3DUsed, OverlaysDrawInTheirOrderWithoutPositions) {
    std::vector<Probe*> order;
    Probe first(0, 0, order);
    Probe second(1, 0, order);
    renderer.AddOverlay(&first);
    renderer.AddOverlay(&second);
    renderer.RenderFrame();
    EXPECT_THAT(order, ElementsAre(&first, &second));
    EXPECT_EQ(first.drawnEye, nullptr);
    EXPECT_EQ(first.drawnLight, nullptr);
    renderer.RemoveOverlay(&first);
    renderer.RenderFrame();
    EXPECT_THAT(renderer.GetOverlayList(), ElementsAre(&second));
}

TEST_F(Renderer3DUsed, PicksTheFigureUnderThePointer) {
    Probe& figure = Add(2, 1);
    Add(5, 5);
    EXPECT_EQ(PickAt({figure.position.x, 2.5f, figure.position.z}), &figure);
}

TEST_F(Renderer3DUsed, PicksEveryFieldOfTheGrid) {
    for (unsigned int row = 0; row < 8; ++row) {
        for (unsigned int column = 0; column < 8; ++column) {
            Element3D* const hit = PickAt(
                {-12.25f + 3.5f * static_cast<float>(column), 0.3f, 12.25f - 3.5f * static_cast<float>(row)});
            ASSERT_NE(hit, nullptr) << column << "," << row;
            EXPECT_EQ(hit->GetColumn(), column);
            EXPECT_EQ(hit->GetRow(), row);
        }
    }
}

TEST_F(Renderer3DUsed, AFigureInFrontOfAFieldWinsByDepth) {
    Probe& figure = Add(4, 2);
    Element3D* const hit = PickAt({figure.position.x, 0.5f, figure.position.z});
    EXPECT_EQ(hit, &figure);
}

TEST_F(Renderer3DUsed, PicksNothingBesideTheBoardOrWithTheGridHidden) {
    EXPECT_EQ(renderer.Pick(3, 3), nullptr);
    grid.SetVisible(false);
    EXPECT_EQ(PickAt({1.75f, 0.3f, 1.75f}), nullptr);
}

TEST_F(Renderer3DUsed, PickingDrawsInTheSelectionPassAndSpendsAStepOfTheClock) {
    Probe& figure = Add(4, 2);
    frameClock.Step(0);
    const std::uint32_t before = frameClock.ticks;
    SDL_Delay(3);
    EXPECT_EQ(PickAt({figure.position.x, 1.0f, figure.position.z}), &figure);
    EXPECT_TRUE(figure.drawnInSelection);
    EXPECT_EQ(figure.drawnEye, nullptr);
    EXPECT_GT(frameClock.ticks, before);
    GLint mode = 0;
    glGetIntegerv(GL_RENDER_MODE, &mode);
    EXPECT_EQ(mode, GL_RENDER);
}

TEST_F(Renderer3DUsed, APickMovesACameraThatIsInMotion) {
    frameClock.Step(SDL_GetTicks());
    view.SetMoveXPlus(1);
    SDL_Delay(20);
    renderer.Pick(10, 10);
    EXPECT_GT(view.GetPosition()->x, 0.05f);
}

TEST_F(Renderer3DUsed, TakesTheNearestHitRecord) {
    Probe& near = Add(0, 0);
    Add(1, 0);
    std::array<unsigned int, 12> records{1, 700, 900, 1,     // the second drawable
                                         1, 500, 900, 0,     // the first, nearer
                                         1, 500, 900, 163};  // a field, as near: the first of equals wins
    EXPECT_EQ(renderer.PickFromHits(3, records.data()), &near);
}

TEST_F(Renderer3DUsed, NamesFromAHundredOnAreFields) {
    std::array<unsigned int, 4> record{1, 10, 20, 163};
    Element3D* const hit = renderer.PickFromHits(1, record.data());
    ASSERT_NE(hit, nullptr);
    EXPECT_EQ(hit->GetColumn(), 7u);
    EXPECT_EQ(hit->GetRow(), 7u);
}

TEST_F(Renderer3DUsed, AnOverflownOrNamelessBufferIsNoHit) {
    std::array<unsigned int, 4> record{1, 10, 20, 163};
    EXPECT_EQ(renderer.PickFromHits(-1, record.data()), nullptr);
    std::array<unsigned int, 3> nameless{0, 10, 20};
    EXPECT_EQ(renderer.PickFromHits(1, nameless.data()), nullptr);
    std::array<unsigned int, 4> farthest{1, 0xFFFFFFFFu, 0xFFFFFFFFu, 163};
    EXPECT_EQ(renderer.PickFromHits(1, farthest.data()), nullptr);
}

TEST_F(Renderer3DUsed, ShowsTheFrameCounterOnlyWhenSwitchedOn) {
    const test::Picture off = Frame();
    renderer.SetShowFps(true);
    const test::Picture on = Frame();
    EXPECT_GT(on.CountDifferences(off, 20), 5000);
}

TEST_F(Renderer3DUsed, TheFrameCounterKeepsItsShareOfAnyWindow) {
    test::UseBitmapFonts();
    grid.SetVisible(false);
    renderer.SetShowFps(true);
    for (const int part : {1, 2}) {
        SCOPED_TRACE(part);
        glViewport(0, 0, 1024 / part, 768 / part);
        const test::Picture picture = Frame();
        // The plate covers 25.6 to 217.6 from the left and as many from below up to 70.4, half as blue again.
        const auto blue = [&](int x, int y) { return picture.Blue(x / part, y / part); };
        for (const int x : {28, 214})
            for (const int y : {28, 68})
                EXPECT_NEAR(blue(x, y), 102, 2) << x << ", " << y;
        for (const auto& [x, y] : {std::pair{22, 40}, {222, 30}, {100, 22}, {100, 74}})
            EXPECT_NEAR(blue(x, y), 51, 2) << x << ", " << y;
        // The text begins at 38.4 from the left and stands on a line 41 from below.
        int left = 1024;
        int bottom = 768;
        for (int y = 0; y < 80; ++y)
            for (int x = 0; x < 220; ++x)
                if (picture.Green(x, y) > 190) {
                    left = std::min(left, x);
                    bottom = std::min(bottom, y);
                }
        EXPECT_NEAR(left, 39 / part, 2);
        EXPECT_NEAR(bottom, 41 / part, 5);
    }
}

TEST_F(Renderer3DUsed, ClearSceneEmptiesTheList) {
    Add(0, 0);
    renderer.ClearScene();
    EXPECT_THAT(renderer.GetSceneList(), IsEmpty());
}

}  // namespace tolvane

#include "scene/ScoreBoard.h"

#include <gmock/gmock.h>

#include <cmath>

#include "assets/Gl.h"
#include "scene/Glut.h"
#include "scene/Props.h"
#include "scene/Stage.h"

namespace tolvane {

namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

using test::IsColor;
using test::Rgb;
using ::testing::Not;

constexpr Rgb black{0, 0, 0};
constexpr Rgb screenBlue{0, 0, 77};

// In front of the board, as the parallel views look at it.
constexpr Vertex front{0.0f, 0.0f, 50.0f};

class ScoreBoardTest : public test::Stage {
protected:
    static void SetUpTestSuite() { test::UseBitmapFonts(); }

    // A view of the screen alone, one pixel of the window for each of its picture.
    static void LookAtScreen() {
        LookAhead(4.0f);
        glViewport(0, 0, 256, 256);
    }

    void Draw(const Vertex& eye = front, bool blending = false, bool useDisplayLists = true,
              int renderMode = renderVertexBuffer) {
        const Vertex light{0.0f, 30.0f, 0.0f};
        board.Draw(renderMode, useDisplayLists, false, blending, &eye, &light);
    }

    test::Picture ScreenPicture() {
        LookAtScreen();
        Clear();
        Draw();
        return test::ReadPicture(0, 0, 256, 256);
    }

    // A line of text as a box of the screen's size shows it by itself.
    static test::Picture LineAlone(const std::string& text, const Color& color, int x, int y) {
        glViewport(0, 0, 256, 256);
        Clear(0.0f, 0.0f, 0.3f);
        TextBox2D box(256.0f, 256.0f);
        box.SetBackgroundVisible(false);
        box.SetFont(GLUT_BITMAP_HELVETICA_18, color);
        box.SetText(text, x, y);
        box.Draw(renderVertexBuffer, false, false, false, nullptr, nullptr);
        return test::ReadPicture(0, 0, 256, 256);
    }

    unsigned int white = MakeTexture(1, {{255, 255, 255}});
    test::SquareProp engine{1.0f, white};
    ParticleEffect flame = test::OneFlame(white);
    ScoreBoard board{engine.Instance(), nullptr, &flame};
};

TEST_F(ScoreBoardTest, ShowsWhoseTurnItIsAndLaterTheCheck) {
    EXPECT_EQ(ScreenPicture().CountDifferences(LineAlone("Next: White", {0.0f, 1.0f, 0.0f}, 80, 50), 3), 0);

    board.turnBox.SetText("Next: Black", 80, 50);
    board.checkBox.SetText("Black is CHECK!", 60, 100);
    board.checkBox.SetVisible(true);
    board.RenderScreen();

    const test::Picture turn = LineAlone("Next: Black", {0.0f, 1.0f, 0.0f}, 80, 50);
    const test::Picture check = LineAlone("Black is CHECK!", {1.0f, 0.0f, 0.0f}, 60, 100);
    const test::Picture picture = ScreenPicture();
    for (int y = 0; y < 256; ++y) {
        for (int x = 0; x < 256; ++x) {
            ASSERT_NEAR(picture.Green(x, y), turn.Green(x, y), 3) << x << ", " << y;
            ASSERT_NEAR(picture.Red(x, y), check.Red(x, y), 3) << x << ", " << y;
        }
    }
}

TEST_F(ScoreBoardTest, StartsWithBothLinesWrittenAndTheSecondHidden) {
    EXPECT_EQ(board.turnBox.GetText(), "Next: White");
    EXPECT_TRUE(board.turnBox.IsVisible());
    EXPECT_EQ(board.checkBox.GetText(), "White is CHECK!");
    EXPECT_FALSE(board.checkBox.IsVisible());

    board.checkBox.SetVisible(true);
    board.turnBox.SetVisible(false);
    board.RenderScreen();
    EXPECT_EQ(ScreenPicture().CountDifferences(LineAlone("White is CHECK!", {1.0f, 0.0f, 0.0f}, 60, 100), 1),
              0);
}

TEST_F(ScoreBoardTest, ChangesItsScreenOnlyWhenItIsRendered) {
    const test::Picture before = ScreenPicture();
    board.turnBox.SetVisible(false);
    board.checkBox.SetVisible(true);
    EXPECT_EQ(ScreenPicture().CountDifferences(before, 0), 0);

    board.RenderScreen();
    EXPECT_GT(ScreenPicture().CountDifferences(before, 0), 0);

    board.turnBox.SetVisible(true);
    board.checkBox.SetVisible(false);
    board.RenderScreen();
    EXPECT_EQ(ScreenPicture().CountDifferences(before, 0), 0);
}

TEST_F(ScoreBoardTest, HasAScreenOfItsOwn) {
    test::PrintedBy([&] {
        ScoreBoard other(engine.Instance(), nullptr, &flame);
        other.turnBox.SetVisible(false);
        other.RenderScreen();
    });
    EXPECT_EQ(ScreenPicture().CountDifferences(LineAlone("Next: White", {0.0f, 1.0f, 0.0f}, 80, 50), 3), 0);
}

TEST_F(ScoreBoardTest, RendersItsScreenInTheMiddleOfAFrame) {
    LookAlong({1.0f, 2.0f, 3.0f}, {0.0f, 1.0f, 0.0f});
    glViewport(10, 20, 300, 200);
    std::array<float, 36> before{};
    std::array<float, 36> after{};
    const auto readState = [](std::array<float, 36>& state) {
        glGetFloatv(GL_MODELVIEW_MATRIX, state.data());
        glGetFloatv(GL_PROJECTION_MATRIX, state.data() + 16);
        glGetFloatv(GL_VIEWPORT, state.data() + 32);
    };
    readState(before);
    const test::Picture window = test::ReadPicture();

    board.RenderScreen();

    readState(after);
    EXPECT_EQ(before, after);
    EXPECT_EQ(test::ReadPicture().CountDifferences(window, 0), 0);
    EXPECT_TRUE(glIsEnabled(GL_LIGHTING));
    EXPECT_TRUE(glIsEnabled(GL_LIGHT0));
}

struct EyeRow {
    Vertex eye;
    float heading;
};

class ScoreBoardFacing : public ScoreBoardTest, public ::testing::WithParamInterface<EyeRow> {};

TEST_P(ScoreBoardFacing, FollowsTheEye) {
    Draw(GetParam().eye);
    EXPECT_NEAR(board.GetRotationY(), GetParam().heading, 1e-3f);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ScoreBoardFacing,
    ::testing::Values(EyeRow{{0.0f, 0.0f, 10.0f}, 0.0f}, EyeRow{{10.0f, 0.0f, 10.0f}, 45.0f},
                      EyeRow{{-10.0f, 0.0f, 10.0f}, -45.0f}, EyeRow{{10.0f, 30.0f, 0.0f}, 90.0f},
                      EyeRow{{-10.0f, -30.0f, 0.0f}, -90.0f}, EyeRow{{10.0f, 0.0f, -10.0f}, 135.0f},
                      EyeRow{{-10.0f, 0.0f, -10.0f}, -135.0f}, EyeRow{{0.0f, 0.0f, -10.0f}, 0.0f},
                      EyeRow{{0.0f, 20.0f, 0.0f}, 0.0f}, EyeRow{{1e-6f, 0.0f, 30.0f}, 0.0f},
                      EyeRow{{1e-6f, 0.0f, -30.0f}, 180.0f}, EyeRow{{-1e-6f, 0.0f, -30.0f}, -180.0f},
                      EyeRow{{1e-23f, 20.0f, 1e-23f}, 0.0f}));

TEST_F(ScoreBoardTest, FollowsTheEyeFromWhereItStands) {
    board.Translate(-27.0f, 5.0f, 0.0f);
    Draw({-20.0f, 1.0f, 7.0f});
    EXPECT_NEAR(board.GetRotationY(), 45.0f, 1e-3f);
    Draw({-34.0f, 1.0f, 7.0f});
    EXPECT_NEAR(board.GetRotationY(), -45.0f, 1e-3f);
}

TEST_F(ScoreBoardTest, TurnsTheFrontOfItsScreenToTheEye) {
    for (const float heading : {20.0f, 70.0f, 110.0f, 160.0f, -20.0f, -70.0f, -110.0f, -160.0f}) {
        const float radians = heading * 3.14159265f / 180.0f;
        const Vertex eye{40.0f * std::sin(radians), 0.0f, 40.0f * std::cos(radians)};
        LookAlong(Scale(eye, -1.0f), {0.0f, 1.0f, 0.0f});
        glTranslatef(-eye.x, -eye.y, -eye.z);
        Clear();
        Draw(eye);
        EXPECT_THAT(ColorAt({0.0f, -2.0f, 0.0f}), IsColor(screenBlue)) << heading;
        // Still upright and not mirrored: the text starts to the left of the middle, high up.
        const Vertex right{std::cos(radians), 0.0f, -std::sin(radians)};
        const Pixel low = PixelOf(Add(Scale(right, -1.6f), {0.0f, 2.3f, 0.0f}));
        const Pixel high = PixelOf(Add(Scale(right, 1.6f), {0.0f, 3.1f, 0.0f}));
        const test::Picture line = test::ReadPicture(low.x, low.y, high.x - low.x, high.y - low.y);
        int green = 0;
        for (int y = 0; y < line.height; ++y)
            for (int x = 0; x < line.width; ++x)
                green += line.Green(x, y) > 64;
        EXPECT_GT(green, 20) << heading;
    }
}

TEST_F(ScoreBoardTest, StandsBetweenTwoEnginesWithFlames) {
    LookAhead(14.0f);
    board.UpdateEffects(0.1f, &front);
    Draw();
    for (const float x : {-5.0f, 5.0f}) {
        EXPECT_THAT(ColorAt({x, 0.3f, 0.0f}), Not(IsColor(black)));
        EXPECT_THAT(ColorAt({x, 0.7f, 0.0f}), IsColor(black));
        EXPECT_THAT(ColorAt({x, -7.5f + 1.2f, 0.0f}), IsColor(Rgb{255, 0, 0}));
        EXPECT_THAT(ColorAt({x, -7.5f + 2.8f, 0.0f}), IsColor(Rgb{255, 0, 0}));
        EXPECT_THAT(ColorAt({x, -7.5f + 0.8f, 0.0f}), IsColor(black));
    }
    for (const float x : {-3.9f, 3.9f})
        EXPECT_THAT(ColorAt({x, -3.9f, 0.0f}), IsColor(screenBlue));
    for (const float x : {-4.1f, 4.1f})
        EXPECT_THAT(ColorAt({x, -3.9f, 0.0f}), IsColor(black));
    EXPECT_THAT(ColorAt({0.0f, -4.1f, 0.0f}), IsColor(black));
}

TEST_F(ScoreBoardTest, StandsWhereItWasMoved) {
    LookAhead(30.0f);
    board.Translate(-20.0f, 5.0f, 0.0f);
    Draw({-20.0f, 0.0f, 50.0f});
    EXPECT_THAT(ColorAt({-20.0f, 5.0f - 2.0f, 0.0f}), IsColor(screenBlue));
    EXPECT_THAT(ColorAt({0.0f, -2.0f, 0.0f}), IsColor(black));
}

TEST_F(ScoreBoardTest, AddsItsScreenToThePictureWhereBlendingIsOn) {
    LookAtScreen();
    Clear(0.5f, 0.0f, 0.0f);
    Draw(front, true);
    const Rgb color = ColorAt({0.0f, -2.0f, 0.0f});
    EXPECT_NEAR(color[0], 128, 3);
    EXPECT_NEAR(color[2], 0.8 * 0.3 * 255, 3);
}

TEST_F(ScoreBoardTest, ShowsTheSameScreenStoredAndAnewAndInEveryRenderMode) {
    LookAhead(14.0f);
    Draw();
    const test::Picture picture = test::ReadPicture();
    for (const int mode : {renderVertexBuffer, renderVertexArray, renderImmediate}) {
        Clear();
        Draw(front, false, false, mode);
        EXPECT_EQ(test::ReadPicture().CountDifferences(picture, 0), 0) << mode;
    }
}

TEST_F(ScoreBoardTest, LightsItsEnginesAloneThroughItsShader) {
    LookAhead(14.0f);
    test::LightPosShader shader;
    ScoreBoard lit(engine.Instance(), shader.Get(), &flame);
    const Vertex light{20.0f, 60.0f, 40.0f};
    Clear();
    lit.Draw(renderVertexBuffer, true, false, false, &front, &light);
    for (const float x : {-5.0f, 5.0f})
        EXPECT_THAT(ColorAt({x, 0.0f, 0.0f}), IsColor(Rgb{51, 102, 153}));
    EXPECT_THAT(ColorAt({0.0f, -2.0f, 0.0f}), IsColor(screenBlue));
}

TEST_F(ScoreBoardTest, CannotBePicked) {
    LookAhead(14.0f);
    const auto hits = Pick(PixelOf({0.0f, 0.0f, 0.0f}),
                           [&] { board.Draw(renderVertexBuffer, true, true, false, nullptr, nullptr); });
    EXPECT_THAT(hits, IsEmpty());
}

TEST_F(ScoreBoardTest, MovesItsFlamesWithItsEffects) {
    EXPECT_FALSE(board.UpdateEffects(0.1f, &front));
    ASSERT_THAT(flame.GetActive(), SizeIs(1));
    const float age = flame.GetActive().front().age;
    Draw();
    board.Update(renderVertexBuffer, 1.0f);
    EXPECT_FLOAT_EQ(flame.GetActive().front().age, age);
}

TEST_F(ScoreBoardTest, IsBusyForGoodButLeftOutWhenOutside) {
    EXPECT_TRUE(board.IsFinished());
    EXPECT_TRUE(board.skipWhenOutside);
}

TEST_F(ScoreBoardTest, ReachesFromItsMiddleToTheFarCornerOfAnEngine) {
    EXPECT_FLOAT_EQ(board.boundRadius, std::sqrt(5.5f * 5.5f + 0.5f * 0.5f));
    EXPECT_TRUE(Equal(board.boundCentre, {0.0f, 0.0f, 0.0f}));
}

TEST_F(ScoreBoardTest, LeavesTheLightOnAndBlendingOff) {
    glDisable(GL_LIGHTING);
    glDisable(GL_LIGHT0);
    Draw(front, true);
    EXPECT_TRUE(glIsEnabled(GL_LIGHTING));
    EXPECT_TRUE(glIsEnabled(GL_LIGHT0));
    EXPECT_FALSE(glIsEnabled(GL_BLEND));
}

}  // namespace

}  // namespace tolvane

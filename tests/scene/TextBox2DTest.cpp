#include "scene/TextBox2D.h"

#include <gmock/gmock.h>

#include <string>

#include "assets/Gl.h"
#include "scene/Glut.h"
#include "scene/Stage.h"

namespace tolvane {

namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

using test::IsColor;
using test::Rgb;

constexpr int width = test::GlWindow::width;
constexpr int height = test::GlWindow::height;
void* const font = GLUT_BITMAP_HELVETICA_18;

// A pixel of the window, counted from the top left as the boxes count.
Rgb ColorAtTop(int x, int y) {
    const test::Picture pixel = test::ReadPicture(x, height - 1 - y, 1, 1);
    return {pixel.Red(0, 0), pixel.Green(0, 0), pixel.Blue(0, 0)};
}

// The part of the window's picture whose upper left corner lies at x, y.
test::Picture Region(int x, int y, int w, int h) {
    return test::ReadPicture(x, height - y - h, w, h);
}

int CountLit(const test::Picture& picture) {
    const std::vector<std::uint8_t> dark(picture.rgb.size());
    return picture.CountDifferences({picture.width, picture.height, dark}, 0);
}

class TextBox2DTest : public test::Stage {
protected:
    static void SetUpTestSuite() { test::UseBitmapFonts(); }

    void SetUp() override {
        Stage::SetUp();
        // Something that a box must not be moved by.
        LookAlong({1.0f, 2.0f, 3.0f}, {0.0f, 1.0f, 0.0f});
    }

    static void Draw(TextBox2D& box, bool blending = false) {
        box.Draw(renderVertexBuffer, true, false, blending, nullptr, nullptr);
    }

    // A white text on no background, its first line's base at (100, 200).
    static TextBox2D TextAlone(const std::string& text) {
        TextBox2D box(width, height);
        box.SetFont(font, {1.0f, 1.0f, 1.0f});
        box.SetText(text, 100, 200);
        box.SetBackgroundVisible(false);
        return box;
    }
};

TEST_F(TextBox2DTest, ShowsATextOnAColouredRectangle) {
    TextBox2D box(width, height);
    box.SetBackground(580, 20, 200, 150, {0.0f, 0.0f, 0.5f}, 0.4f);
    box.SetFont(font, {0.0f, 0.8f, 0.0f});
    box.SetText("Select a Figure:\n1: Queen", 590, 45);

    Draw(box, true);

    EXPECT_NEAR(ColorAtTop(600, 160)[2], 0.4 * 0.5 * 255, 3);
    int green = 0;
    const test::Picture lines = Region(590, 25, 190, 50);
    for (int y = 0; y < lines.height; ++y)
        for (int x = 0; x < lines.width; ++x)
            green += lines.Green(x, y) > 150;
    EXPECT_GT(green, 200);
}

TEST_F(TextBox2DTest, IsVisibleAndWithoutATextAtFirst) {
    const TextBox2D box(width, height);
    EXPECT_TRUE(box.IsVisible());
    EXPECT_EQ(box.GetText(), "");
}

TEST_F(TextBox2DTest, FillsTheGivenRectangleCountedFromTheTopLeft) {
    TextBox2D box(width, height);
    box.SetBackground(20, 30, 120, 35, {1.0f, 0.0f, 0.5f}, 0.4f);
    Draw(box);
    constexpr Rgb filled{255, 0, 128};
    constexpr Rgb empty{0, 0, 0};
    EXPECT_THAT(ColorAtTop(20, 30), IsColor(filled));
    EXPECT_THAT(ColorAtTop(139, 64), IsColor(filled));
    EXPECT_THAT(ColorAtTop(19, 30), IsColor(empty));
    EXPECT_THAT(ColorAtTop(20, 29), IsColor(empty));
    EXPECT_THAT(ColorAtTop(140, 64), IsColor(empty));
    EXPECT_THAT(ColorAtTop(139, 65), IsColor(empty));
}

TEST_F(TextBox2DTest, StretchesItsOwnSpaceOverTheViewport) {
    TextBox2D box(800.0f, 600.0f);
    box.SetBackground(400, 300, 400, 300, {1.0f, 1.0f, 1.0f}, 1.0f);
    Draw(box);
    EXPECT_THAT(ColorAtTop(width / 2, height / 2), IsColor(Rgb{255, 255, 255}));
    EXPECT_THAT(ColorAtTop(width - 1, height - 1), IsColor(Rgb{255, 255, 255}));
    EXPECT_THAT(ColorAtTop(width / 2 - 1, height / 2), IsColor(Rgb{0, 0, 0}));
    EXPECT_THAT(ColorAtTop(width / 2, height / 2 - 1), IsColor(Rgb{0, 0, 0}));

    glViewport(0, 0, 400, 300);
    Clear();
    Draw(box);
    EXPECT_THAT(ColorAtTop(200, height - 150), IsColor(Rgb{255, 255, 255}));
    EXPECT_THAT(ColorAtTop(199, height - 150), IsColor(Rgb{0, 0, 0}));
}

TEST_F(TextBox2DTest, PrintsATextWithoutALineEndOnOneLine) {
    TextBox2D box = TextAlone("Next: White");
    Draw(box);
    EXPECT_GT(CountLit(Region(100, 180, 200, 25)), 100);
    EXPECT_EQ(CountLit(test::ReadPicture()), CountLit(Region(100, 180, 200, 25)));
}

TEST_F(TextBox2DTest, StartsEachNewLineBelowTheStartOfTheFirst) {
    TextBox2D box = TextAlone("ABC");
    Draw(box);
    const test::Picture line = Region(90, 180, 200, 25);

    Clear();
    box.SetText("ABC\nABC\n\nABC", 100, 200);
    Draw(box);
    for (const int below : {0, 25, 75})
        EXPECT_EQ(Region(90, 180 + below, 200, 25).CountDifferences(line, 0), 0) << below;
    EXPECT_EQ(CountLit(Region(90, 230, 200, 25)), 0);
}

TEST_F(TextBox2DTest, PrintsInTheColourOfTheFont) {
    TextBox2D box = TextAlone("I");
    box.SetFont(font, {0.2f, 0.4f, 0.6f});
    Draw(box);
    const test::Picture picture = Region(95, 180, 20, 25);
    EXPECT_GT(CountLit(picture), 0);
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            if (picture.Red(x, y) != 0) {
                const Rgb color{picture.Red(x, y), picture.Green(x, y), picture.Blue(x, y)};
                EXPECT_THAT(color, IsColor(Rgb{51, 102, 153}));
            }
        }
    }
}

struct Flags {
    bool visible;
    bool background;
    bool text;
};

class TextBox2DFlags : public TextBox2DTest, public ::testing::WithParamInterface<Flags> {};

TEST_P(TextBox2DFlags, DecideWhatIsShown) {
    const auto [visible, background, text] = GetParam();
    TextBox2D box = TextAlone("Press Q to quit");
    box.SetBackground(100, 300, 50, 50, {1.0f, 1.0f, 1.0f}, 1.0f);
    box.SetVisible(visible);
    box.SetBackgroundVisible(background);
    box.SetTextVisible(text);
    Draw(box);
    EXPECT_EQ(box.IsVisible(), visible);
    EXPECT_EQ(CountLit(Region(100, 300, 50, 50)), visible && background ? 2500 : 0);
    EXPECT_EQ(CountLit(Region(100, 180, 200, 25)) > 0, visible && text);
}

INSTANTIATE_TEST_SUITE_P(Rows, TextBox2DFlags,
                         ::testing::Values(Flags{true, true, true}, Flags{true, false, true},
                                           Flags{true, true, false}, Flags{true, false, false},
                                           Flags{false, true, true}));

TEST_F(TextBox2DTest, IsSeenThroughOnlyWhereBlendingIsOn) {
    TextBox2D box(width, height);
    box.SetBackground(0, 0, 100, 100, {1.0f, 0.0f, 0.0f}, 0.25f);
    Clear(0.0f, 0.0f, 1.0f);
    Draw(box, true);
    EXPECT_NEAR(ColorAtTop(50, 50)[0], 64, 3);
    EXPECT_NEAR(ColorAtTop(50, 50)[2], 191, 3);
    Draw(box, false);
    EXPECT_THAT(ColorAtTop(50, 50), IsColor(Rgb{255, 0, 0}));
}

TEST_F(TextBox2DTest, CoversWhateverIsInFrontOfIt) {
    TextBox2D box(width, height);
    box.SetBackground(0, 0, 100, 100, {1.0f, 0.0f, 0.0f}, 1.0f);
    glClearDepth(0.0);
    Clear();
    Draw(box);
    EXPECT_THAT(ColorAtTop(50, 50), IsColor(Rgb{255, 0, 0}));
}

TEST_F(TextBox2DTest, IsNeverPicked) {
    TextBox2D box = TextAlone("ABC");
    box.SetBackground(0, 0, width, height, {1.0f, 0.0f, 0.0f}, 1.0f);
    box.SetBackgroundVisible(true);
    const auto hits = Pick({width / 2, height / 2},
                           [&] { box.Draw(renderVertexBuffer, true, true, false, nullptr, nullptr); });
    EXPECT_THAT(hits, IsEmpty());
    EXPECT_THAT(Pick({width / 2, height / 2}, [&] { Draw(box); }), SizeIs(1));
}

TEST_F(TextBox2DTest, LeavesTheMatricesAloneAndTheSceneStateOn) {
    std::array<float, 32> before{};
    std::array<float, 32> after{};
    const auto readMatrices = [](std::array<float, 32>& matrices) {
        glGetFloatv(GL_MODELVIEW_MATRIX, matrices.data());
        glGetFloatv(GL_PROJECTION_MATRIX, matrices.data() + 16);
    };
    readMatrices(before);
    TextBox2D box = TextAlone("ABC");
    Draw(box, true);
    readMatrices(after);
    EXPECT_EQ(before, after);

    int mode = 0;
    glGetIntegerv(GL_MATRIX_MODE, &mode);
    EXPECT_EQ(mode, GL_MODELVIEW);
    for (const GLenum capability : {GL_CULL_FACE, GL_DEPTH_TEST, GL_LIGHTING, GL_TEXTURE_2D})
        EXPECT_TRUE(glIsEnabled(capability)) << capability;
    EXPECT_FALSE(glIsEnabled(GL_BLEND));
}

TEST_F(TextBox2DTest, PrintsBytesBeyondAscii) {
    TextBox2D box = TextAlone("\xC4\xFF");
    Draw(box);
    EXPECT_GT(CountLit(Region(100, 175, 60, 30)), 0);
}

// What Print draws at whole pixels with the colour white.
class TextBox2DPrinting : public TextBox2DTest {
protected:
    void SetUp() override {
        Stage::SetUp();
        glViewport(0, 0, width, height);
        glMatrixMode(GL_PROJECTION);
        glLoadIdentity();
        glOrtho(0.0, width, height, 0.0, -1.0, 1.0);
        glMatrixMode(GL_MODELVIEW);
        glLoadIdentity();
        glDisable(GL_LIGHTING);
        glDisable(GL_TEXTURE_2D);
        glColor3f(1.0f, 1.0f, 1.0f);
    }

    static test::Picture Letter(const std::string& letter) {
        Clear();
        TextBox2D::PrintString(100, 200, font, letter);
        const test::Picture picture = Region(100, 180, 20, 25);
        Clear();
        return picture;
    }
};

TEST_F(TextBox2DPrinting, SpacesCharactersOut) {
    const test::Picture first = Letter("A");
    const test::Picture second = Letter("B");
    TextBox2D::PrintSpaced(100, 200, 30, font, "AB");
    const int step = glutBitmapWidth(font, 'A') + 30;
    EXPECT_EQ(Region(100, 180, 20, 25).CountDifferences(first, 0), 0);
    EXPECT_EQ(Region(100 + step, 180, 20, 25).CountDifferences(second, 0), 0);
    EXPECT_EQ(CountLit(test::ReadPicture()), CountLit(first) + CountLit(second));
}

TEST_F(TextBox2DPrinting, StacksCharacters) {
    const test::Picture first = Letter("A");
    const test::Picture second = Letter("B");
    TextBox2D::PrintVertical(100, 200, 40, font, "AB");
    EXPECT_EQ(Region(100, 180, 20, 25).CountDifferences(first, 0), 0);
    EXPECT_EQ(Region(100, 220, 20, 25).CountDifferences(second, 0), 0);
    EXPECT_EQ(CountLit(test::ReadPicture()), CountLit(first) + CountLit(second));
}

}  // namespace

}  // namespace tolvane

#include <gtest/gtest.h>

#include "scene/Glut.h"
#include "scene/Stage.h"
#include "scene/TextBox2D.h"

namespace tolvane {

namespace {

// A program of its own, in which nothing ever initialises GLUT.
class TextBox2DWithoutFonts : public test::Stage {};

TEST_F(TextBox2DWithoutFonts, ShowsItsRectangleAndLeavesTheTextOut) {
    ASSERT_EQ(glutGet(GLUT_INIT_STATE), 0);
    TextBox2D box(test::GlWindow::width, test::GlWindow::height);
    box.SetBackground(0, 0, 100, 50, {1.0f, 1.0f, 1.0f}, 1.0f);
    box.SetFont(GLUT_BITMAP_HELVETICA_18, {1.0f, 0.0f, 0.0f});
    box.SetText("Press Q to quit", 10, 30);
    const test::Picture empty = test::ReadPicture();

    box.Draw(renderVertexBuffer, true, false, false, nullptr, nullptr);

    const test::Picture picture = test::ReadPicture();
    EXPECT_EQ(picture.CountDifferences(empty, 0), 100 * 50);
    for (int x = 0; x < 100; ++x)
        EXPECT_EQ(picture.Green(x, test::GlWindow::height - 25), 255);
}

TEST_F(TextBox2DWithoutFonts, PrintsNothing) {
    ASSERT_EQ(glutGet(GLUT_INIT_STATE), 0);
    const test::Picture empty = test::ReadPicture();
    TextBox2D::PrintString(0, 0, GLUT_BITMAP_HELVETICA_18, "A");
    TextBox2D::PrintSpaced(0, 0, 1, GLUT_BITMAP_HELVETICA_18, "A");
    TextBox2D::PrintVertical(0, 0, 1, GLUT_BITMAP_HELVETICA_18, "A");
    EXPECT_EQ(test::ReadPicture().CountDifferences(empty, 0), 0);
}

}  // namespace

}  // namespace tolvane

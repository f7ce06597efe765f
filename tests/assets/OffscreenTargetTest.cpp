#include "assets/OffscreenTarget.h"

#include <gmock/gmock.h>

#include <array>

#include "assets/Gl.h"
#include "support/GlWindow.h"

namespace tolvane {
namespace {

constexpr int edge = 64;

class Target : public ::testing::Test {
protected:
    Target() {
        glPushAttrib(GL_ALL_ATTRIB_BITS);
        glDisable(GL_LIGHTING);
        glDisable(GL_TEXTURE_2D);
        glMatrixMode(GL_PROJECTION);
        glLoadIdentity();
        glOrtho(-1, 1, -1, 1, -10, 10);
        test::PrintedBy([&] { target.Init(edge); });
    }
    ~Target() override {
        glBindTexture(GL_TEXTURE_2D, 0);
        glMatrixMode(GL_MODELVIEW);
        glLoadIdentity();
        glPopAttrib();
    }

    // Red, green and blue of a pixel of the picture.
    std::array<int, 3> PixelAt(int x, int y) const {
        std::vector<std::uint8_t> pixels(edge * edge * 3);
        glBindTexture(GL_TEXTURE_2D, target.GetTexture());
        glPixelStorei(GL_PACK_ALIGNMENT, 1);
        glGetTexImage(GL_TEXTURE_2D, 0, GL_RGB, GL_UNSIGNED_BYTE, pixels.data());
        const auto i = static_cast<std::size_t>((y * edge + x) * 3);
        return {pixels[i], pixels[i + 1], pixels[i + 2]};
    }
    static std::array<int, 4> Viewport() {
        std::array<int, 4> viewport{};
        glGetIntegerv(GL_VIEWPORT, viewport.data());
        return viewport;
    }
    static int Framebuffer() {
        GLint bound = -1;
        glGetIntegerv(GL_FRAMEBUFFER_BINDING_EXT, &bound);
        return bound;
    }

    OffscreenTarget target;
};

TEST_F(Target, TakesWhatIsDrawnIntoItsPicture) {
    ASSERT_TRUE(OffscreenTarget::IsSupported());
    target.Begin();
    glColor3f(1, 0, 0);
    glRectf(-1, -1, 0, 0);
    target.End();
    EXPECT_THAT(PixelAt(edge / 4, edge / 4), ::testing::ElementsAre(255, 0, 0));
    EXPECT_THAT(PixelAt(edge * 3 / 4, edge / 4),
                ::testing::ElementsAre(0, 0, ::testing::AllOf(::testing::Ge(76), ::testing::Le(77))));
    EXPECT_EQ(PixelAt(edge / 4, edge * 3 / 4)[0], 0);
}

TEST_F(Target, StartsItsPictureAnewEachTime) {
    target.Begin();
    glColor3f(1, 0, 0);
    glRectf(-1, -1, 1, 1);
    target.End();
    target.Begin();
    target.End();
    EXPECT_EQ(PixelAt(edge / 2, edge / 2)[0], 0);
}

TEST_F(Target, LeavesWindowAndViewportAsTheyWere) {
    glViewport(11, 22, 333, 444);
    target.Render(true);
    EXPECT_THAT(Viewport(), ::testing::ElementsAre(0, 0, edge, edge));
    EXPECT_GT(Framebuffer(), 0);
    EXPECT_EQ(glCheckFramebufferStatusEXT(GL_FRAMEBUFFER_EXT),
              static_cast<GLenum>(GL_FRAMEBUFFER_COMPLETE_EXT));
    target.Render(false);
    EXPECT_THAT(Viewport(), ::testing::ElementsAre(11, 22, 333, 444));
    EXPECT_EQ(Framebuffer(), 0);
    GLint renderbuffer = -1;
    glGetIntegerv(GL_RENDERBUFFER_BINDING_EXT, &renderbuffer);
    EXPECT_EQ(renderbuffer, 0);
}

TEST_F(Target, LooksFromFiveUnitsAwayAndKeepsItsClearColor) {
    target.Render(true);
    std::array<float, 16> matrix{};
    glGetFloatv(GL_MODELVIEW_MATRIX, matrix.data());
    EXPECT_THAT(matrix, ::testing::ElementsAre(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, -5, 1));
    GLint mode = 0;
    glGetIntegerv(GL_MATRIX_MODE, &mode);
    EXPECT_EQ(mode, GL_MODELVIEW);
    target.Render(false);
    std::array<float, 4> color{};
    glGetFloatv(GL_COLOR_CLEAR_VALUE, color.data());
    EXPECT_THAT(color, ::testing::ElementsAre(0, 0, 0.3f, 1));
}

TEST_F(Target, HasAnOwnDepth) {
    target.Begin();
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_LEQUAL);
    glColor3f(0, 1, 0);
    glTranslatef(0, 0, 2);
    glRectf(-1, -1, 1, 1);
    glColor3f(1, 0, 0);
    glTranslatef(0, 0, -2);
    glRectf(-1, -1, 1, 1);
    target.End();
    EXPECT_THAT(PixelAt(edge / 2, edge / 2), ::testing::ElementsAre(0, 255, 0));
}

TEST_F(Target, FiltersItsPicture) {
    glBindTexture(GL_TEXTURE_2D, target.GetTexture());
    GLint filter = 0;
    glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, &filter);
    EXPECT_EQ(filter, GL_LINEAR);
    glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, &filter);
    EXPECT_EQ(filter, GL_LINEAR);
}

TEST_F(Target, TellsHowTheWindowStands) {
    OffscreenTarget other;
    EXPECT_EQ(test::PrintedBy([&] { other.Init(edge); }),
              "\n**********************\nframebuffer complete\n**********************\n\n");
}

TEST_F(Target, LosesItsFirstPictureWhenItIsMadeAgain) {
    const unsigned int first = target.GetTexture();
    test::PrintedBy([&] { target.Init(edge); });
    EXPECT_NE(target.GetTexture(), first);
    EXPECT_TRUE(glIsTexture(first));
    glDeleteTextures(1, &first);
}

TEST_F(Target, FreesItsPicture) {
    unsigned int texture = 0;
    {
        OffscreenTarget shortLived;
        test::PrintedBy([&] { shortLived.Init(edge); });
        texture = shortLived.GetTexture();
        EXPECT_TRUE(glIsTexture(texture));
    }
    EXPECT_FALSE(glIsTexture(texture));
}

}  // namespace
}  // namespace tolvane

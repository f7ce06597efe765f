#include "scene/Sun.h"

#include <gmock/gmock.h>

#include "assets/Gl.h"
#include "scene/Props.h"
#include "scene/Stage.h"

namespace tolvane {

namespace {

using test::IsColor;
using test::Rgb;
using ::testing::ElementsAre;
using ::testing::SizeIs;

class SunTest : public test::Stage {
protected:
    void SetUp() override {
        Stage::SetUp();
        LookAhead(20.0f);
    }

    static void Draw(Sun& sun, int renderMode = renderVertexBuffer, bool selectionPass = false) {
        const Vertex light = *sun.GetPosition();
        sun.Draw(renderMode, true, selectionPass, true, nullptr, &light);
    }

    static std::array<float, 4> LightPosition() {
        std::array<float, 4> position{};
        glGetLightfv(GL_LIGHT0, GL_POSITION, position.data());
        return position;
    }

    test::SquareProp body{4.0f, MakeTexture(1, {{200, 100, 50}})};
};

TEST_F(SunTest, ShinesFromWhereItsBodyStands) {
    Sun sun(body.Instance(), nullptr);
    sun.Translate(5.0f, 10.0f, 0.0f);

    Draw(sun);

    EXPECT_THAT(ColorAt({5.0f, 10.0f, 0.0f}), IsColor(Rgb{200, 100, 50}));
    EXPECT_THAT(ColorAt({0.0f, 0.0f, 0.0f}), IsColor(Rgb{0, 0, 0}));
    // In eye coordinates, as GL keeps it: the directional light knows the turn of the view alone.
    EXPECT_THAT(LightPosition(), ElementsAre(5.0f, 10.0f, 0.0f, 0.0f));
    EXPECT_TRUE(glIsEnabled(GL_LIGHT0));
}

TEST_F(SunTest, SetsTheLightInTheSelectionPassToo) {
    Sun sun(body.Instance(), nullptr);
    sun.Translate(0.0f, 30.0f, 0.0f);
    glDisable(GL_LIGHT0);
    const auto hits = Pick(PixelOf({0.0f, 0.0f, 0.0f}), [&] { Draw(sun, renderVertexBuffer, true); });
    EXPECT_TRUE(glIsEnabled(GL_LIGHT0));
    EXPECT_THAT(LightPosition(), ElementsAre(0.0f, 30.0f, 0.0f, 0.0f));
    EXPECT_THAT(hits, SizeIs(0));
}

TEST_F(SunTest, GlowsByItself) {
    const Sun sun(body.Instance(), nullptr);
    EXPECT_THAT(body.Instance()->GetMaterial()->GetEmission(), ElementsAre(1.0f, 1.0f, 1.0f, 1.0f));
    EXPECT_FLOAT_EQ(sun.boundRadius, 2.0f);
}

TEST_F(SunTest, IsDrawnThroughAShaderWhereItHasOne) {
    test::LightPosShader shader;
    Sun sun(body.Instance(), shader.Get());
    const Vertex light{20.0f, 60.0f, 40.0f};
    sun.Draw(renderVertexBuffer, true, false, true, nullptr, &light);
    EXPECT_THAT(ColorAt({0.0f, 0.0f, 0.0f}), IsColor(Rgb{51, 102, 153}));
}

TEST_F(SunTest, LooksTheSameInEveryRenderMode) {
    Sun sun(body.Instance(), nullptr);
    Draw(sun, renderVertexBuffer);
    const test::Picture picture = test::ReadPicture();
    for (const int mode : {renderVertexArray, renderImmediate}) {
        Clear();
        Draw(sun, mode);
        EXPECT_THAT(ColorAt({0.0f, 0.0f, 0.0f}), IsColor(Rgb{200, 100, 50}));
        EXPECT_EQ(test::ReadPicture().CountDifferences(picture, 0), 0) << mode;
    }
}

TEST_F(SunTest, LeavesTheLightOn) {
    Sun sun(body.Instance(), nullptr);
    glDisable(GL_LIGHTING);
    Draw(sun);
    EXPECT_TRUE(glIsEnabled(GL_LIGHTING));
}

TEST_F(SunTest, DoesNotMoveByItself) {
    Sun sun(body.Instance(), nullptr);
    sun.Update(renderVertexBuffer, 1.0f);
    EXPECT_FALSE(sun.UpdateEffects(1.0f, nullptr));
    EXPECT_FLOAT_EQ(sun.GetRotationY(), 0.0f);
    EXPECT_FALSE(sun.IsFinished());
}

TEST_F(SunTest, ComesRoundInTwentyEightPointEightSeconds) {
    Sun sun(body.Instance(), nullptr);
    Draw(sun);
    const test::Picture start = test::ReadPicture();

    EXPECT_FALSE(sun.Spin(7.2f));
    EXPECT_FLOAT_EQ(sun.GetRotationY(), 90.0f);
    Clear();
    Draw(sun);
    EXPECT_GT(test::ReadPicture().CountDifferences(start, 0), 0);

    for (int i = 0; i < 3; ++i)
        sun.Spin(7.2f);
    EXPECT_FLOAT_EQ(sun.GetRotationY(), 360.0f);
    Clear();
    Draw(sun);
    EXPECT_EQ(test::ReadPicture().CountDifferences(start, 0), 0);

    sun.Spin(28.8f);
    EXPECT_FLOAT_EQ(sun.GetRotationY(), 720.0f);
}

}  // namespace

}  // namespace tolvane

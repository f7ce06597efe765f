#include "scene/DrawAble.h"

#include <gmock/gmock.h>

#include "assets/Gl.h"
#include "scene/Stage.h"

namespace tolvane {

namespace {

using test::IsColor;
using test::Rgb;
// The smallest thing that a scene can hold: a white point.
class Dot final : public DrawAble {
public:
    void Draw(int, bool, bool, bool, const Vertex*, const Vertex*) override {
        ApplyStandardTransform();
        glBegin(GL_POINTS);
        glVertex3f(1.0f, 0.0f, 0.0f);
        glEnd();
    }

    void SetBusy(bool value) { busy = value; }
};

TEST(DrawAble, StandsAtTheOriginAndMovesAndTurns) {
    Dot dot;
    EXPECT_TRUE(Equal(*dot.GetPosition(), {0.0f, 0.0f, 0.0f}));

    dot.Translate(1.0f, 2.0f, 3.0f);
    dot.Translate(1.0f, 0.0f, -1.0f);
    dot.RotateX(10.0f);
    dot.RotateY(20.0f);
    dot.RotateZ(-30.0f);

    EXPECT_TRUE(Equal(*dot.GetPosition(), {2.0f, 2.0f, 2.0f}));
    EXPECT_FLOAT_EQ(dot.GetRotationX(), 10.0f);
    EXPECT_FLOAT_EQ(dot.GetRotationY(), 20.0f);
    EXPECT_FLOAT_EQ(dot.GetRotationZ(), -30.0f);
}

TEST(DrawAble, StartsActiveIdleAndWithoutExtent) {
    const Dot dot;
    EXPECT_TRUE(dot.active);
    EXPECT_FALSE(dot.skipWhenOutside);
    EXPECT_TRUE(Equal(dot.boundCentre, {0.0f, 0.0f, 0.0f}));
    EXPECT_FLOAT_EQ(dot.boundRadius, 0.0f);
    EXPECT_FLOAT_EQ(dot.distance, 0.0f);
}

TEST(DrawAble, IsMovedByWritingThroughItsPosition) {
    Dot dot;
    *dot.GetPosition() = {4.0f, 5.0f, 6.0f};
    dot.GetPosition()->y = 7.0f;
    EXPECT_TRUE(Equal(dot.position, {4.0f, 7.0f, 6.0f}));
}

struct Turn {
    float first;
    float second;
    float angle;
};

class DrawAbleTurn : public ::testing::TestWithParam<Turn> {};

TEST_P(DrawAbleTurn, LosesOneFullTurnAtMost) {
    const auto [first, second, angle] = GetParam();
    Dot dot;
    for (const float degrees : {first, second}) {
        dot.RotateX(degrees);
        dot.RotateY(degrees);
        dot.RotateZ(degrees);
    }
    EXPECT_FLOAT_EQ(dot.GetRotationX(), angle);
    EXPECT_FLOAT_EQ(dot.GetRotationY(), angle);
    EXPECT_FLOAT_EQ(dot.GetRotationZ(), angle);
}

INSTANTIATE_TEST_SUITE_P(Rows, DrawAbleTurn,
                         ::testing::Values(Turn{350.0f, 20.0f, 10.0f}, Turn{-350.0f, -20.0f, -10.0f},
                                           Turn{360.0f, 0.0f, 0.0f}, Turn{-360.0f, 0.0f, 0.0f},
                                           Turn{350.0f, -20.0f, 330.0f}, Turn{0.0f, 359.0f, 359.0f},
                                           Turn{0.0f, 800.0f, 440.0f}, Turn{0.0f, -800.0f, -440.0f}));

TEST(DrawAble, IsFinishedWhileBusy) {
    Dot dot;
    EXPECT_FALSE(dot.IsFinished());
    dot.SetBusy(true);
    EXPECT_TRUE(dot.IsFinished());
}

TEST(DrawAble, HasNothingToUpdateOfItsOwn) {
    Dot dot;
    dot.Translate(1.0f, 2.0f, 3.0f);
    dot.Update(renderVertexBuffer, 1.0f);
    dot.BuildDisplayLists();
    EXPECT_FALSE(dot.UpdateEffects(1.0f, nullptr));
    EXPECT_TRUE(Equal(dot.position, {1.0f, 2.0f, 3.0f}));
}

class DrawAbleOnStage : public test::Stage {};

TEST_F(DrawAbleOnStage, IsMovedThenTurnedAboutXThenYThenZ) {
    glDisable(GL_LIGHTING);
    glDisable(GL_TEXTURE_2D);
    glColor3f(1.0f, 1.0f, 1.0f);
    glPointSize(5.0f);
    Dot dot;
    dot.Translate(3.0f, -2.0f, 1.0f);
    // The dot's point (1, 0, 0) goes to (0.866, 0.5, 0) about z, to (0, 0.5, -0.866) about y and to
    // (0, 0.866, 0.5) about x.
    dot.RotateX(90.0f);
    dot.RotateY(90.0f);
    dot.RotateZ(30.0f);

    for (const auto look : {LookAhead, LookDown}) {
        Clear();
        look(8.0f);
        glPushMatrix();
        dot.Draw(renderVertexBuffer, true, false, false, nullptr, nullptr);
        glPopMatrix();
        EXPECT_THAT(ColorAt({3.0f, -1.134f, 1.5f}), IsColor(Rgb{255, 255, 255}));
    }
}

}  // namespace

}  // namespace tolvane

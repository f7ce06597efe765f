#include "scene/Light.h"

#include <gmock/gmock.h>

#include "assets/Gl.h"
#include "scene/Stage.h"

namespace tolvane {

namespace {

using ::testing::ElementsAre;
using ::testing::FloatEq;

class LightTest : public test::Stage {
protected:
    void SetUp() override {
        Stage::SetUp();
        glMatrixMode(GL_MODELVIEW);
        glLoadIdentity();
        glDisable(GL_LIGHT0);
    }

    static std::array<float, 4> Value(GLenum name) {
        std::array<float, 4> value{};
        glGetLightfv(GL_LIGHT0, name, value.data());
        return value;
    }
};

TEST_F(LightTest, GivesItsDefaultsToTheFirstLight) {
    const Light light;
    light.Apply(0.0f, 30.0f, 0.0f);

    EXPECT_TRUE(glIsEnabled(GL_LIGHT0));
    EXPECT_THAT(Value(GL_DIFFUSE), ElementsAre(0.8f, 0.8f, 0.8f, 1.0f));
    EXPECT_THAT(Value(GL_AMBIENT), ElementsAre(0.4f, 0.4f, 0.4f, 1.0f));
    EXPECT_THAT(Value(GL_SPECULAR), ElementsAre(0.8f, 0.8f, 0.8f, 1.0f));
    EXPECT_THAT(Value(GL_POSITION), ElementsAre(0.0f, 30.0f, 0.0f, 0.0f));
    EXPECT_THAT(Value(GL_CONSTANT_ATTENUATION)[0], FloatEq(1.0f));
    EXPECT_THAT(Value(GL_LINEAR_ATTENUATION)[0], FloatEq(0.001f));
    EXPECT_THAT(Value(GL_QUADRATIC_ATTENUATION)[0], FloatEq(0.0005f));
}

TEST_F(LightTest, GivesWhatWasSetToTheFirstLight) {
    Light light;
    light.SetDiffuse(0.1f, 0.2f, 0.3f, 0.4f);
    light.SetAmbient(0.5f, 0.6f, 0.7f, 0.8f);
    light.SetSpecular(0.9f, 0.8f, 0.7f, 0.6f);
    light.SetConstantAttenuation(2.0f);
    light.SetLinearAttenuation(3.0f);
    light.SetQuadraticAttenuation(4.0f);
    light.Apply(1.0f, 2.0f, 3.0f);

    EXPECT_THAT(Value(GL_DIFFUSE), ElementsAre(0.1f, 0.2f, 0.3f, 0.4f));
    EXPECT_THAT(Value(GL_AMBIENT), ElementsAre(0.5f, 0.6f, 0.7f, 0.8f));
    EXPECT_THAT(Value(GL_SPECULAR), ElementsAre(0.9f, 0.8f, 0.7f, 0.6f));
    EXPECT_THAT(Value(GL_POSITION), ElementsAre(1.0f, 2.0f, 3.0f, 0.0f));
    EXPECT_THAT(Value(GL_CONSTANT_ATTENUATION)[0], FloatEq(2.0f));
    EXPECT_THAT(Value(GL_LINEAR_ATTENUATION)[0], FloatEq(3.0f));
    EXPECT_THAT(Value(GL_QUADRATIC_ATTENUATION)[0], FloatEq(4.0f));
}

TEST_F(LightTest, ShinesStraightDownWhateverTheDistance) {
    LookDown(10.0f);
    Light().Apply(0.0f, 30.0f, 0.0f);
    glDisable(GL_TEXTURE_2D);
    glDisable(GL_COLOR_MATERIAL);
    const std::array<float, 4> black{0.0f, 0.0f, 0.0f, 1.0f};
    const std::array<float, 4> white{1.0f, 1.0f, 1.0f, 1.0f};
    glMaterialfv(GL_FRONT_AND_BACK, GL_AMBIENT, black.data());
    glMaterialfv(GL_FRONT_AND_BACK, GL_SPECULAR, black.data());
    glMaterialfv(GL_FRONT_AND_BACK, GL_DIFFUSE, white.data());

    const auto brightness = [](float y, const Vertex& normal) {
        Clear();
        glBegin(GL_QUADS);
        glNormal3f(normal.x, normal.y, normal.z);
        glVertex3f(-9.0f, y, -9.0f);
        glVertex3f(9.0f, y, -9.0f);
        glVertex3f(9.0f, y, 9.0f);
        glVertex3f(-9.0f, y, 9.0f);
        glEnd();
        return ColorAt({8.0f, y, 8.0f})[0];
    };
    for (const float y : {29.0f, 0.0f, -80.0f})
        EXPECT_NEAR(brightness(y, {0.0f, 1.0f, 0.0f}), 0.8 * 255, 3) << y;
    EXPECT_EQ(brightness(0.0f, {1.0f, 0.0f, 0.0f}), 0);
    EXPECT_EQ(brightness(0.0f, {0.0f, -1.0f, 0.0f}), 0);
}

}  // namespace

}  // namespace tolvane

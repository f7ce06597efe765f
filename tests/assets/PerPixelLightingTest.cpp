#include <gmock/gmock.h>

#include <algorithm>
#include <memory>

#include "assets/Gl.h"
#include "assets/Material.h"
#include "assets/Shader.h"
#include "support/GlWindow.h"

namespace tolvane {
namespace {

constexpr int edge = 256;
constexpr int stragglers = 8;  // pixels at the outline that one way fills and the other does not
constexpr int rim = 26;        // levels that an edge may gain over the fixed function; the rest stays nearer
constexpr Vertex light{0.0f, 30.0f, 0.0f};

// A finely cut ball under the game's light, with the game's own shader files.
class PerPixelLighting : public ::testing::Test {
protected:
    PerPixelLighting() {
        glPushAttrib(GL_ALL_ATTRIB_BITS);
        glViewport(0, 0, edge, edge);
        glEnable(GL_DEPTH_TEST);
        glEnable(GL_LIGHTING);
        glEnable(GL_LIGHT0);
        glEnable(GL_TEXTURE_2D);
        glLightModeli(GL_LIGHT_MODEL_LOCAL_VIEWER, 1);
        glLightModeli(GL_LIGHT_MODEL_COLOR_CONTROL, GL_SEPARATE_SPECULAR_COLOR);
        glMatrixMode(GL_PROJECTION);
        glLoadIdentity();
        gluPerspective(60.0, 1.0, 0.1, 400.0);
        glMatrixMode(GL_MODELVIEW);
        glLoadIdentity();
        glRotatef(40.0f, 1.0f, 0.0f, 0.0f);
        PlaceLight();
        glTranslatef(0.0f, -3.0f, -4.0f);
        glGenTextures(1, &texture);
        Paint(200, 120, 60);
        test::PrintedBy([&] {
            shader =
                std::make_unique<Shader>("shader/Per_Pixel_Lighting.vert", "shader/Per_Pixel_Lighting.frag");
        });
        glEnable(GL_COLOR_MATERIAL);
    }
    ~PerPixelLighting() override {
        Shader::Disable();
        glDisable(GL_COLOR_MATERIAL);
        test::PrintedBy([&] { shader->Free(); });
        glDeleteTextures(1, &texture);
        glPopAttrib();
    }

    test::Picture Draw(Shader* lighting) {
        glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        material.Apply(lighting, nullptr, &light);
        GLUquadric* ball = gluNewQuadric();
        gluQuadricTexture(ball, GL_TRUE);
        gluSphere(ball, 2.0, 96, 96);
        gluDeleteQuadric(ball);
        Shader::Disable();
        glEnable(GL_COLOR_MATERIAL);
        return test::ReadPicture(0, 0, edge, edge);
    }

    // Gives the ball a picture of one colour.
    void Paint(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
        glBindTexture(GL_TEXTURE_2D, texture);
        const std::uint8_t grain[] = {red, green, blue, 128};
        glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 1, 1, 0, GL_RGBA, GL_UNSIGNED_BYTE, grain);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
        material.SetTextureId(texture);
    }

    Material material;
    std::unique_ptr<Shader> shader;

private:
    static void PlaceLight() {
        const float soft[] = {0.4f, 0.4f, 0.4f, 1.0f};
        const float bright[] = {0.8f, 0.8f, 0.8f, 1.0f};
        const float place[] = {light.x, light.y, light.z, 0.0f};
        glLightfv(GL_LIGHT0, GL_AMBIENT, soft);
        glLightfv(GL_LIGHT0, GL_DIFFUSE, bright);
        glLightfv(GL_LIGHT0, GL_SPECULAR, bright);
        glLightfv(GL_LIGHT0, GL_POSITION, place);
    }
    GLuint texture = 0;
};

TEST_F(PerPixelLighting, UsesBothValuesThatItIsFed) {
    EXPECT_GE(shader->GetUniformLocation("Texture"), 0);
    EXPECT_GE(shader->GetUniformLocation("LightPos"), 0);
}

TEST_F(PerPixelLighting, LooksLikeTheFixedFunction) {
    struct Case {
        const char* who;
        float ambient, diffuse, specular, shininess;
    };
    const Case cases[] = {
        {"board", 0.2f, 0.3f, 0.0f, 50.0f},   {"pawn, bishop, knight, king", 0.7f, 0.9f, 1.0f, 10.0f},
        {"rook", 0.2f, 0.8f, 0.8f, 20.0f},    {"queen", 0.4f, 0.5f, 0.8f, 20.0f},
        {"others", 0.0f, 1.0f, 1.0f, 100.0f},
    };
    for (const Case& row : cases) {
        material.SetAmbient(row.ambient, row.ambient, row.ambient, 1.0f);
        material.SetDiffuse(row.diffuse, row.diffuse, row.diffuse, 1.0f);
        material.SetSpecular(row.specular, row.specular, row.specular, 1.0f);
        material.SetShininess(row.shininess);
        const test::Picture fixed = Draw(nullptr);
        EXPECT_LE(fixed.CountDifferences(Draw(shader.get()), rim), stragglers) << row.who;
        EXPECT_GT(fixed.Red(edge / 2, edge / 2 + 30), 100);
    }
}

TEST_F(PerPixelLighting, FadesByTheAlphaOfColorAndPicture) {
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    material.SetSpecular(0.0f, 0.0f, 0.0f, 1.0f);
    const test::Picture opaque = Draw(shader.get());
    material.GetColor()[3] = 0.25f;
    const test::Picture faint = Draw(shader.get());
    EXPECT_LE(faint.CountDifferences(Draw(nullptr), 2), stragglers);
    EXPECT_NEAR(faint.Red(edge / 2, edge / 2), opaque.Red(edge / 2, edge / 2) / 4, 2);
}

TEST_F(PerPixelLighting, GlowsByItsEmission) {
    material.SetSpecular(0.0f, 0.0f, 0.0f, 1.0f);
    material.SetEmission(0.5f, 0.0f, 0.0f, 1.0f);
    EXPECT_LE(Draw(nullptr).CountDifferences(Draw(shader.get()), 2), stragglers);
}

TEST_F(PerPixelLighting, LetsPaintedLampsShineInTheShadowToo) {
    const int shadow = edge / 2 - 60;
    material.SetSpecular(0.0f, 0.0f, 0.0f, 1.0f);
    Paint(20, 230, 255);
    EXPECT_NEAR(Draw(shader.get()).Blue(edge / 2, shadow), 255, 2);
    EXPECT_LT(Draw(nullptr).Blue(edge / 2, shadow), 200);
    Paint(255, 150, 30);
    EXPECT_NEAR(Draw(shader.get()).Red(edge / 2, shadow), 255, 2);
    Paint(150, 140, 120);  // ivory is no lamp
    EXPECT_LT(Draw(shader.get()).Red(edge / 2, shadow), 130);
}

TEST_F(PerPixelLighting, ThrowsLessLightBackFromDarkPaint) {
    const auto gleam = [&] {
        const auto brightest = [&](const test::Picture& picture) {
            return *std::max_element(picture.rgb.begin(), picture.rgb.end());
        };
        material.SetSpecular(0.5f, 0.5f, 0.5f, 1.0f);
        const int with = brightest(Draw(shader.get()));
        material.SetSpecular(0.0f, 0.0f, 0.0f, 1.0f);
        return with - brightest(Draw(shader.get()));
    };
    Paint(120, 120, 120);
    const int bright = gleam();
    Paint(20, 20, 20);
    EXPECT_LT(gleam(), bright * 3 / 4);
}

}  // namespace
}  // namespace tolvane

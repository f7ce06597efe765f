#include "assets/Material.h"

#include <gmock/gmock.h>

#include "assets/Gl.h"
#include "assets/Shader.h"
#include "support/GlWindow.h"
#include "support/TemporaryFile.h"

namespace tolvane {
namespace {

using ::testing::ElementsAre;

class MaterialInGl : public ::testing::Test {
protected:
    MaterialInGl() {
        glPushAttrib(GL_ALL_ATTRIB_BITS);
        glDisable(GL_COLOR_MATERIAL);
    }
    ~MaterialInGl() override { glPopAttrib(); }

    static std::array<float, 4> Front(GLenum property) { return Read(GL_FRONT, property); }
    static std::array<float, 4> Read(GLenum face, GLenum property) {
        std::array<float, 4> values{};
        glGetMaterialfv(face, property, values.data());
        return values;
    }
    static std::array<float, 4> CurrentColor() {
        std::array<float, 4> values{};
        glGetFloatv(GL_CURRENT_COLOR, values.data());
        return values;
    }
    static int BoundTexture() {
        GLint bound = -1;
        glGetIntegerv(GL_TEXTURE_BINDING_2D, &bound);
        return bound;
    }

    Material material;
};

TEST_F(MaterialInGl, BecomesTheMaterialOfTheFixedFunction) {
    material.SetDiffuse(0.1f, 0.2f, 0.3f, 0.4f);
    material.SetAmbient(0.5f, 0.6f, 0.7f, 0.8f);
    material.SetSpecular(0.9f, 0.8f, 0.7f, 0.6f);
    material.SetEmission(0.5f, 0.4f, 0.3f, 0.2f);
    material.SetShininess(20.0f);
    material.SetColor(0.25f, 0.5f, 0.75f, 0.125f);
    material.SetTextureId(77);
    material.Apply(nullptr, nullptr, nullptr);
    for (const GLenum face : {GL_FRONT, GL_BACK}) {
        EXPECT_THAT(Read(face, GL_SPECULAR), ElementsAre(0.9f, 0.8f, 0.7f, 0.6f));
        EXPECT_THAT(Read(face, GL_EMISSION), ElementsAre(0.5f, 0.4f, 0.3f, 0.2f));
        EXPECT_EQ(Read(face, GL_SHININESS)[0], 20.0f);
    }
    EXPECT_TRUE(glIsEnabled(GL_COLOR_MATERIAL));
    EXPECT_THAT(CurrentColor(), ElementsAre(0.25f, 0.5f, 0.75f, 0.125f));
    EXPECT_EQ(BoundTexture(), 77);
    EXPECT_EQ(glGetHandleARB(GL_PROGRAM_OBJECT_ARB), 0u);
}

TEST_F(MaterialInGl, IsWhiteAndShinyByDefault) {
    EXPECT_THAT(material.GetDiffuse(), ElementsAre(1, 1, 1, 1));
    EXPECT_THAT(material.GetAmbient(), ElementsAre(0, 0, 0, 0));
    EXPECT_THAT(material.GetSpecular(), ElementsAre(1, 1, 1, 1));
    EXPECT_THAT(material.GetEmission(), ElementsAre(0, 0, 0, 0));
    EXPECT_EQ(material.GetShininess(), 100.0f);
    EXPECT_THAT(std::vector<float>(material.GetColor(), material.GetColor() + 4), ElementsAre(1, 1, 1, 1));
}

TEST_F(MaterialInGl, FadesThroughTheAddressOfItsColor) {
    material.GetColor()[3] = 0.5f;
    material.Apply(nullptr, nullptr, nullptr);
    EXPECT_THAT(CurrentColor(), ElementsAre(1, 1, 1, 0.5f));
}

class MaterialInShader : public MaterialInGl {
protected:
    MaterialInShader() {
        test::PrintedBy([&] { shader = std::make_unique<Shader>(vertex.Path(), fragment.Path()); });
    }
    ~MaterialInShader() override {
        Shader::Disable();
        test::PrintedBy([&] { shader->Free(); });
    }

    test::TemporaryFile vertex{
        "#version 120\nuniform vec4 LightPos;\n"
        "void main() { gl_Position = gl_Vertex + LightPos; }\n"};
    test::TemporaryFile fragment{
        "#version 120\nuniform sampler2D Texture;\n"
        "void main() { gl_FragColor = texture2D(Texture, vec2(0.5)); }\n"};
    std::unique_ptr<Shader> shader;
};

TEST_F(MaterialInShader, FeedsItsPictureAndTheLight) {
    const Vertex light{1.0f, 2.0f, 3.0f};
    glEnable(GL_COLOR_MATERIAL);
    material.SetTextureId(78);
    material.Apply(shader.get(), nullptr, &light);
    EXPECT_EQ(glGetHandleARB(GL_PROGRAM_OBJECT_ARB), shader->GetProgram());
    EXPECT_FALSE(glIsEnabled(GL_COLOR_MATERIAL));
    EXPECT_EQ(BoundTexture(), 78);
    GLint unit = -1;
    glGetUniformivARB(shader->GetProgram(), shader->GetUniformLocation("Texture"), &unit);
    EXPECT_EQ(unit, 0);
    std::array<float, 4> place{};
    glGetUniformfvARB(shader->GetProgram(), shader->GetUniformLocation("LightPos"), place.data());
    EXPECT_THAT(place, ElementsAre(1, 3, 2, 0));
}

TEST_F(MaterialInShader, KeepsItsOwnColorsInTheShader) {
    material.SetDiffuse(0.1f, 0.2f, 0.3f, 1.0f);
    material.SetAmbient(0.4f, 0.5f, 0.6f, 1.0f);
    material.Apply(shader.get(), nullptr, nullptr);
    EXPECT_THAT(Front(GL_DIFFUSE), ElementsAre(0.1f, 0.2f, 0.3f, 1.0f));
    EXPECT_THAT(Front(GL_AMBIENT), ElementsAre(0.4f, 0.5f, 0.6f, 1.0f));
}

}  // namespace
}  // namespace tolvane

#include "assets/Shader.h"

#include <gmock/gmock.h>

#include <optional>

#include "assets/Exception.h"
#include "assets/Gl.h"
#include "assets/ShaderStore.h"
#include "support/GlWindow.h"
#include "support/TemporaryFile.h"

namespace tolvane {
namespace {

using test::PrintedBy;
using test::TemporaryFile;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

constexpr auto* missingFile = "*** Error: Cannot open shader file!\n";
constexpr auto* freed = "!!! freeshader called !!!\n";

class Shaders : public ::testing::Test {
protected:
    Shaders() { ForgetErrors(); }
    ~Shaders() override {
        Shader::Disable();
        ForgetErrors();
    }

    static void ForgetErrors() {
        while (glGetError() != GL_NO_ERROR) {
        }
    }

    // The message of the exception that making a shader throws.
    static std::string FailureOf(const std::string& vertexPath, const std::string& fragmentPath) {
        try {
            const Shader shader(vertexPath, fragmentPath);
        } catch (const Exception& exception) {
            return exception.GetMessage();
        }
        return "none";
    }
    std::unique_ptr<Shader> Make() {
        std::unique_ptr<Shader> shader;
        PrintedBy([&] { shader = std::make_unique<Shader>(vertex.Path(), fragment.Path()); });
        return shader;
    }

    TemporaryFile vertex{
        "uniform float a; uniform vec2 b; uniform vec3 c; uniform vec4 d;\n"
        "void main() { gl_Position = gl_Vertex + vec4(b, c.xy) + vec4(c, a) + d; }\n"};
    TemporaryFile fragment{
        "uniform sampler2D Texture;\n"
        "void main() { gl_FragColor = texture2D(Texture, vec2(0.0)); }\n"};
    TemporaryFile broken{"void main() { gl_Position = nonsense; }\n"};
};

TEST_F(Shaders, CompileAndTakeUniforms) {
    std::unique_ptr<Shader> shader;
    EXPECT_EQ(PrintedBy([&] { shader = std::make_unique<Shader>(vertex.Path(), fragment.Path()); }),
              "* Shader compiled successfull\n");
    shader->Enable();
    EXPECT_EQ(glGetHandleARB(GL_PROGRAM_OBJECT_ARB), shader->GetProgram());
    shader->SetUniform1i("Texture", 3);
    shader->SetUniform1f("a", 1.0f);
    shader->SetUniform2f("b", 1.0f, 2.0f);
    shader->SetUniform3f("c", 1.0f, 2.0f, 3.0f);
    shader->SetUniform4f("d", 1.0f, 2.0f, 3.0f, 4.0f);
    const auto uniform = [&](const char* name) {
        std::array<float, 4> values{};
        glGetUniformfvARB(shader->GetProgram(), shader->GetUniformLocation(name), values.data());
        return values;
    };
    EXPECT_THAT(uniform("a"), ElementsAre(1, 0, 0, 0));
    EXPECT_THAT(uniform("b"), ElementsAre(1, 2, 0, 0));
    EXPECT_THAT(uniform("c"), ElementsAre(1, 2, 3, 0));
    EXPECT_THAT(uniform("d"), ElementsAre(1, 2, 3, 4));
    GLint unit = 0;
    glGetUniformivARB(shader->GetProgram(), shader->GetUniformLocation("Texture"), &unit);
    EXPECT_EQ(unit, 3);
    Shader::Disable();
    EXPECT_EQ(glGetHandleARB(GL_PROGRAM_OBJECT_ARB), 0u);
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

TEST_F(Shaders, IgnoreUniformsThatTheyLack) {
    const auto shader = Make();
    shader->Enable();
    EXPECT_EQ(shader->GetUniformLocation("none"), -1);
    shader->SetUniform1i("none", 1);
    shader->SetUniform4f("none", 1, 2, 3, 4);
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

TEST_F(Shaders, ChooseTheTextureUnit) {
    const auto shader = Make();
    GLint unit = 0;
    for (const int number : {2, 0}) {
        shader->SetActiveTexture(number);
        glGetIntegerv(GL_ACTIVE_TEXTURE, &unit);
        EXPECT_EQ(unit, GL_TEXTURE0 + number);
    }
}

TEST_F(Shaders, LeaveTheFixedFunctionWithoutAnObject) {
    const auto shader = Make();
    shader->Enable();
    Shader::Disable();
    EXPECT_EQ(glGetHandleARB(GL_PROGRAM_OBJECT_ARB), 0u);
}

TEST_F(Shaders, CannotBeMadeFromMissingFiles) {
    EXPECT_EQ(PrintedBy([&] {
                  EXPECT_EQ(FailureOf("nowhere.vert", fragment.Path()), "Unable to read VertexShader");
              }),
              missingFile);
    EXPECT_EQ(PrintedBy([&] {
                  EXPECT_EQ(FailureOf(vertex.Path(), "nowhere.frag"), "Unable to read FragmentShader");
              }),
              missingFile);
}

TEST_F(Shaders, ThatDoNotCompileTellItWhenTheyAreLinked) {
    std::unique_ptr<Shader> shader;
    const std::string printed =
        PrintedBy([&] { shader = std::make_unique<Shader>(broken.Path(), fragment.Path()); });
    EXPECT_THAT(printed, StartsWith("*** Error: "));
    EXPECT_THAT(printed, HasSubstr("nonsense"));
    EXPECT_THAT(printed, HasSubstr("\n\n*** Error: \n\n*** Error: "));
    EXPECT_THAT(printed, EndsWith("\n\n"));
    EXPECT_NE(shader->GetProgram(), 0u);
    PrintedBy([&] { shader->Free(); });
}

TEST_F(Shaders, MayHaveAnEmptySourceWhichDoesNotLink) {
    const TemporaryFile empty("");
    std::unique_ptr<Shader> shader;
    EXPECT_THAT(PrintedBy([&] { shader = std::make_unique<Shader>(empty.Path(), fragment.Path()); }),
                StartsWith("*** Error: "));
    EXPECT_NE(shader->GetProgram(), 0u);
    PrintedBy([&] { shader->Free(); });
}

TEST_F(Shaders, GiveTheirObjectsBackOnceAndSayItEachTime) {
    const auto shader = Make();
    const unsigned int program = shader->GetProgram();
    GLint attached = 0;
    glGetObjectParameterivARB(program, GL_OBJECT_ATTACHED_OBJECTS_ARB, &attached);
    EXPECT_EQ(attached, 2);
    EXPECT_EQ(PrintedBy([&] { shader->Free(); }), freed);
    EXPECT_FALSE(glIsProgram(program));
    EXPECT_EQ(shader->GetProgram(), 0u);
    EXPECT_EQ(shader->GetUniformLocation("a"), -1);
    const auto other = Make();
    EXPECT_EQ(PrintedBy([&] { shader->Free(); }), freed);
    EXPECT_TRUE(glIsProgram(other->GetProgram()));
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
    PrintedBy([&] { other->Free(); });
}

TEST_F(Shaders, AreKeptByNameInTheirStore) {
    ShaderStore store;
    Shader* first = nullptr;
    PrintedBy([&] { first = store.Load("light", vertex.Path(), fragment.Path()); });
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(PrintedBy([&] { EXPECT_EQ(store.Load("light", "nowhere.vert", "nowhere.frag"), first); }), "");
    EXPECT_EQ(PrintedBy([&] { EXPECT_NE(store.Load("other", vertex.Path(), fragment.Path()), first); }),
              "* Shader compiled successfull\n");
}

TEST_F(Shaders, ThatCannotBeMadeAreNotKept) {
    ShaderStore store;
    PrintedBy([&] { EXPECT_THROW(store.Load("light", "nowhere.vert", fragment.Path()), Exception); });
    PrintedBy([&] { EXPECT_NE(store.Load("light", vertex.Path(), fragment.Path()), nullptr); });
}

TEST_F(Shaders, AreFreedWithTheirStoreOnce) {
    std::optional<ShaderStore> store(std::in_place);
    unsigned int program = 0;
    PrintedBy([&] { program = store->Load("light", vertex.Path(), fragment.Path())->GetProgram(); });
    ShaderStore later;
    EXPECT_EQ(PrintedBy([&] { later = std::move(*store); }), "");
    EXPECT_EQ(PrintedBy([&] { store.reset(); }), "");
    EXPECT_TRUE(glIsProgram(program));
    EXPECT_EQ(PrintedBy([&] { later = ShaderStore(); }), freed);
    EXPECT_FALSE(glIsProgram(program));
}

}  // namespace
}  // namespace tolvane

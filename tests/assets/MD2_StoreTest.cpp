#include "assets/MD2_Store.h"

#include <gmock/gmock.h>

#include <optional>
#include <stdexcept>

#include "assets/Gl.h"
#include "assets/MD2_Instance.h"
#include "assets/TextureHandler.h"
#include "support/GlWindow.h"
#include "support/Md2File.h"
#include "support/TemporaryFile.h"
#include "support/TgaFile.h"

namespace tolvane {
namespace {

using test::PrintedBy;
using test::TemporaryFile;
using ::testing::HasSubstr;
using ::testing::MatchesRegex;
using ::testing::StartsWith;

class ModelStore : public ::testing::Test {
protected:
    // The caller's own instance and what the console received for it.
    struct Made {
        std::unique_ptr<MD2_Instance> instance;
        std::string printed;
    };
    Made Make(const std::string& normalMapPath = "") {
        Made made;
        made.printed = PrintedBy([&] {
            made.instance.reset(store.CreateInstance(modelPath, picture.Path(), normalMapPath, 2.0f));
        });
        return made;
    }

    TextureHandler textures;
    MD2_Store store{&textures};
    std::optional<TemporaryFile> modelFile{std::in_place, test::SquareModel({"stand0", "stand1"}).Bytes(),
                                           ".md2"};
    std::string modelPath = modelFile->Path();
    TemporaryFile picture{test::PlainTga(4, 4, 255, 0, 0), ".tga"};
};

TEST_F(ModelStore, MakesAnInstanceOfAFile) {
    const Made made = Make();
    ASSERT_NE(made.instance, nullptr);
    EXPECT_EQ(made.instance->maxX, 10.0f);
    EXPECT_EQ(made.instance->GetMaterial()->GetTextureId(), textures.GetTextureId(picture.Path()));
    EXPECT_THAT(
        made.printed,
        MatchesRegex("MD2 - Model: Checking if already loaded ...\n"
                     "MD2 - Model: model not loaded yet ...\n"
                     " textureBuffer init - OK :: [0-9]+\n"
                     "MD2 - Model: exists!\n"
                     "Creating VBO\n"
                     "VBO CREATED\n"
                     "\n"
                     "\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+"
                     "\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\\+\n"
                     "\\+\\+\\+ VBO ID: [0-9]+ :: Vertex and Normal Array in VBO: 144 bytes\n"
                     "\\+\\+\\+ Model Statistics:: Vertices = 4 --- Triangles: 2\n"
                     "\\++\n\n"));
}

TEST_F(ModelStore, ReadsAModelOnlyOnce) {
    Make();
    modelFile.reset();
    const Made second = Make();
    ASSERT_NE(second.instance, nullptr);
    EXPECT_THAT(second.printed, StartsWith("MD2 - Model: Checking if already loaded ...\n"
                                           "MD2 - Model: exists!\n"
                                           "Creating VBO\n"));
}

TEST_F(ModelStore, GivesEachInstanceItsOwnMesh) {
    const Made first = Make();
    const Made second = Make();
    EXPECT_NE(first.instance->GetVertexBuffer(), second.instance->GetVertexBuffer());
    first.instance->SetAnimation({"stand", MD2_AnimationMode::Loop, 1.0f});
    EXPECT_EQ(second.instance->GetAnimationName(), "");
}

TEST_F(ModelStore, LooksAPathUpAsItIsGiven) {
    Make();
    modelPath.insert(modelPath.rfind('/'), "/.");
    EXPECT_THAT(Make().printed, HasSubstr("model not loaded yet"));
}

TEST_F(ModelStore, HasNoNormalMapWithoutAPath) {
    EXPECT_EQ(Make().instance->GetMaterial()->GetNormalMapId(), static_cast<unsigned int>(-1));
    const TemporaryFile normals(test::PlainTga(4, 4, 128, 128, 255), ".tga");
    const Made made = Make(normals.Path());
    EXPECT_EQ(made.instance->GetMaterial()->GetNormalMapId(), textures.GetTextureId(normals.Path()));
    EXPECT_NE(made.instance->GetMaterial()->GetNormalMapId(), made.instance->GetMaterial()->GetTextureId());
}

TEST_F(ModelStore, AsksForMipmapsAndClampedPictures) {
    const Made made = Make();
    glBindTexture(GL_TEXTURE_2D, made.instance->GetMaterial()->GetTextureId());
    GLint filter = 0;
    GLint wrap = 0;
    glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, &filter);
    glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, &wrap);
    EXPECT_EQ(filter, GL_LINEAR_MIPMAP_LINEAR);
    EXPECT_EQ(wrap, GL_CLAMP_TO_EDGE);
}

TEST_F(ModelStore, MakesAnInstanceWithoutItsPicture) {
    std::unique_ptr<MD2_Instance> instance;
    const std::string printed =
        PrintedBy([&] { instance.reset(store.CreateInstance(modelPath, "nowhere.tga", "", 1.0f)); });
    ASSERT_NE(instance, nullptr);
    EXPECT_THAT(printed, HasSubstr(" error: 1290\n"));
    EXPECT_NE(instance->GetMaterial()->GetTextureId(), TextureHandler::unknownTexture);
}

TEST_F(ModelStore, MakesNothingWithoutATextureHandler) {
    MD2_Store bare;
    MD2_Instance* instance = nullptr;
    EXPECT_EQ(PrintedBy([&] { instance = bare.CreateInstance(modelPath, picture.Path(), "", 1.0f); }),
              "Error: No texture handler defined!!! \n");
    EXPECT_EQ(instance, nullptr);
}

TEST_F(ModelStore, PassesAMissingModelOnAndTriesItAgain) {
    modelPath = "nowhere.md2";
    ::testing::internal::CaptureStderr();
    const std::string printed = PrintedBy([&] {
        EXPECT_THROW(store.CreateInstance(modelPath, picture.Path(), "", 1.0f), std::runtime_error);
        EXPECT_THROW(store.CreateInstance(modelPath, picture.Path(), "", 1.0f), std::runtime_error);
    });
    ::testing::internal::GetCapturedStderr();
    EXPECT_EQ(printed,
              "MD2 - Model: Checking if already loaded ...\nMD2 - Model: model not loaded yet ...\n"
              "MD2 - Model: Checking if already loaded ...\nMD2 - Model: model not loaded yet ...\n");
}

TEST_F(ModelStore, MovesWithItsModels) {
    Make();
    MD2_Store later;
    later = std::move(store);
    modelFile.reset();
    std::unique_ptr<MD2_Instance> instance;
    PrintedBy([&] { instance.reset(later.CreateInstance(modelPath, picture.Path(), "", 1.0f)); });
    EXPECT_NE(instance, nullptr);
}

}  // namespace
}  // namespace tolvane

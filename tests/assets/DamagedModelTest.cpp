#include <gmock/gmock.h>

#include <array>
#include <cstring>
#include <limits>
#include <stdexcept>

#include "assets/Gl.h"
#include "assets/LoadedModel.h"
#include "assets/MD2_Reader.h"
#include "support/GlWindow.h"
#include "support/TemporaryFile.h"

namespace tolvane {
namespace {

using Bytes = std::vector<std::uint8_t>;
using test::Md2File;
using test::TemporaryFile;

constexpr std::size_t headerFields = 17;

Md2File Sound() {
    Md2File file = test::SquareModel({"stand0", "stand1", "run0"});
    file.skins = {"skin"};
    file.commands = {1, 2, 3};
    return file;
}

void SetField(Bytes& bytes, std::size_t field, std::int32_t value) {
    std::memcpy(bytes.data() + field * 4, &value, sizeof(value));
}

std::size_t MemoryOf(const MD2_Model& model) {
    std::size_t size = model.GetTexCoords().capacity() * sizeof(MD2_TexCoord) +
                       model.GetTriangles().capacity() * sizeof(MD2_Triangle) +
                       model.GetTexturePoints().capacity() * sizeof(MD2_TexturePoint);
    for (const MD2_Frame& frame : model.GetFrames())
        size += sizeof(MD2_Frame) + frame.packedVertices.capacity() * sizeof(MD2_PackedVertex) +
                frame.vertices.capacity() * sizeof(MD2_Vertex);
    return size;
}

// Reads the model, if it is one, and does with it all that a game does.
void UseModel(const TemporaryFile& file, const Bytes& bytes) {
    file.Write(bytes);
    std::unique_ptr<MD2_Model> model;
    try {
        model = MD2_Reader().Load(file.Path());
    } catch (const std::runtime_error&) {
        return;
    }
    ASSERT_LT(MemoryOf(*model), 4u << 20);
    MD2_Instance instance(model.get(), 0, 0, 1.0f);
    for (const auto& [name, group] : model->GetAnimations()) {
        for (const int renderMode : {0, 1}) {
            instance.SetAnimation({name, MD2_AnimationMode::Loop, 1.0f});
            instance.Animate(renderMode, 0.05f);
            for (int i = 0; i < 4; ++i)
                instance.Animate(renderMode, 0.11f);
            instance.SetAnimation({name, MD2_AnimationMode::Freeze, 1.0f});
            instance.Animate(renderMode, 0.0f);
        }
    }
    instance.DrawVBO(false, nullptr, nullptr, nullptr);
    instance.DrawVertexArray(false, nullptr, nullptr, nullptr);
    instance.DrawImmediate(false, nullptr, nullptr, nullptr);
}

// Draws into a corner of the window: what is drawn matters less here than that it can be.
class DamagedModel : public ::testing::Test {
protected:
    DamagedModel() { glViewport(0, 0, 8, 8); }
    ~DamagedModel() override {
        glFinish();
        glViewport(0, 0, test::GlWindow::width, test::GlWindow::height);
    }
};

TEST_F(DamagedModel, MayBeCutShortAnywhere) {
    const Bytes sound = Sound().Bytes();
    const TemporaryFile file(sound);
    test::PrintedBy([&] {
        for (std::size_t length = 0; length <= sound.size(); ++length)
            UseModel(file, Bytes(sound.begin(), sound.begin() + static_cast<std::ptrdiff_t>(length)));
    });
}

TEST_F(DamagedModel, MayLieInAnyFieldOfItsHeader) {
    const Bytes sound = Sound().Bytes();
    const auto size = static_cast<std::int32_t>(sound.size());
    const std::array lies{std::numeric_limits<std::int32_t>::min(),
                          std::numeric_limits<std::int32_t>::min() / 4,
                          -65536,
                          -1,
                          0,
                          1,
                          2,
                          17,
                          size - 1,
                          size,
                          size + 1,
                          65535,
                          65536,
                          0x10000001,
                          0x40000000,
                          std::numeric_limits<std::int32_t>::max()};
    const TemporaryFile file(sound);
    test::PrintedBy([&] {
        for (std::size_t field = 0; field < headerFields; ++field) {
            for (const std::int32_t lie : lies) {
                Bytes bytes = sound;
                SetField(bytes, field, lie);
                UseModel(file, bytes);
            }
        }
    });
}

TEST_F(DamagedModel, MayLieInAllCountsAtOnce) {
    const Bytes sound = Sound().Bytes();
    const TemporaryFile file(sound);
    test::PrintedBy([&] {
        for (const std::int32_t lie : {-1, 0, 1000, 0x7FFFFFFF}) {
            Bytes bytes = sound;
            for (std::size_t field = 5; field <= 10; ++field)
                SetField(bytes, field, lie);
            UseModel(file, bytes);
        }
    });
}

TEST_F(DamagedModel, MayHaveAnyByteWrong) {
    const Bytes sound = Sound().Bytes();
    const TemporaryFile file(sound);
    test::PrintedBy([&] {
        for (std::size_t i = 0; i < sound.size(); ++i) {
            Bytes bytes = sound;
            bytes[i] = 0xFF;
            UseModel(file, bytes);
        }
    });
}

TEST_F(DamagedModel, ReadsAsZeroWhereTheFileHasEnded) {
    Md2File whole = Sound();
    whole.commands.clear();
    Bytes bytes = whole.Bytes();
    bytes.resize(bytes.size() -
                 6);  // the last vertex of the last frame, and the y to normal of the one before
    const auto model = test::LoadModel(bytes);
    ASSERT_EQ(model->GetFrames().size(), 3u);
    const MD2_Frame& cut = model->GetFrames()[2];
    ASSERT_EQ(cut.vertices.size(), 4u);
    EXPECT_EQ(cut.vertices[1].y, 10.0f + cut.translate[1]);
    EXPECT_EQ(cut.vertices[2].x, 10.0f + cut.translate[0]);
    EXPECT_EQ(cut.vertices[2].y, 10.0f + cut.translate[1]);
    EXPECT_EQ(cut.vertices[2].normalIndex, 0);
    EXPECT_EQ(cut.vertices[3].x, cut.translate[0]);
    EXPECT_EQ(cut.vertices[3].normalIndex, 0);
}

TEST_F(DamagedModel, ReadsEntryZeroWhereAnIndexPointsOutside) {
    Md2File file = Sound();
    file.triangles = {{{4, 65535, 2}, {4, 65535, 1}}};
    file.frames[0].vertices[3].normalIndex = 162;
    file.frames[0].vertices[2].normalIndex = 255;
    const auto model = test::LoadModel(file);
    EXPECT_THAT(model->GetTriangles()[0].vertexIndices, ::testing::ElementsAre(0, 0, 2));
    EXPECT_THAT(model->GetTriangles()[0].texCoordIndices, ::testing::ElementsAre(0, 0, 1));
    EXPECT_EQ(model->GetFrames()[0].vertices[3].normalIndex, 0);
    EXPECT_EQ(model->GetFrames()[0].vertices[2].normalIndex, 0);
}

TEST_F(DamagedModel, WithoutAnyFrameIsOnePointAtTheOrigin) {
    Md2File file = Sound();
    file.frames.clear();
    const auto model = test::LoadModel(file);
    const auto instance = test::MakeInstance(*model);
    EXPECT_EQ(instance->boundRadius, 0.0f);
    EXPECT_THAT(instance->GetVertexArray(), ::testing::Each(0.0f));
}

TEST_F(DamagedModel, WithoutAnyTriangleDrawsNothing) {
    Md2File file = Sound();
    file.triangles.clear();
    const auto model = test::LoadModel(file);
    const auto instance = test::MakeInstance(*model);
    EXPECT_EQ(instance->boundRadius, 0.0f);
    EXPECT_TRUE(instance->GetVertexArray().empty());
    instance->SetAnimation({"stand", MD2_AnimationMode::Loop, 1.0f});
    for (const int renderMode : {0, 1, 2})
        EXPECT_FALSE(instance->Animate(renderMode, 0.01f));
    instance->DrawVBO(false, nullptr, nullptr, nullptr);
}

}  // namespace
}  // namespace tolvane

#include "assets/MD2_Reader.h"

#include <gmock/gmock.h>

#include <stdexcept>

#include "assets/LoadedModel.h"
#include "assets/MD2_VertexNormals.h"
#include "support/TemporaryFile.h"

namespace tolvane {
namespace {

using test::LoadModel;
using test::Md2File;
using test::TemporaryFile;

std::string FailureOf(const std::string& path) {
    try {
        MD2_Reader().Load(path);
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "none";
}

std::string FailureOf(const std::vector<std::uint8_t>& bytes) {
    const TemporaryFile file(bytes);
    return FailureOf(file.Path());
}

Md2File Triangle() {
    Md2File file;
    file.skins = {"somewhere/skin.pcx", "another.pcx"};
    file.texCoords = {{0, 0}, {64, 0}, {-16, 96}};
    file.triangles = {{{2, 0, 1}, {1, 2, 0}}};
    file.frames = {
        {"first", {{0, 1, 2, 0}, {10, 20, 30, 161}, {255, 128, 64, 5}}, {0.5f, 2.0f, -1.0f}, {100, 200, 300}},
        {"second", {{1, 1, 1, 7}, {2, 2, 2, 8}, {3, 3, 3, 9}}, {1, 1, 1}, {0, 0, 0}}};
    file.commands = {3, 0, 0, 0};
    return file;
}

TEST(MD2_Reader, ReadsEveryBlockOfAModel) {
    const auto model = LoadModel(Triangle());
    const MD2_Header& header = model->GetHeader();
    EXPECT_EQ(header.ident, 0x32504449);
    EXPECT_EQ(header.version, 8);
    EXPECT_EQ(header.skinWidth, 64);
    EXPECT_EQ(header.skinHeight, 64);
    EXPECT_EQ(header.numSkins, 2);
    EXPECT_EQ(header.numVertices, 3);
    EXPECT_EQ(header.numTexCoords, 3);
    EXPECT_EQ(header.numTriangles, 1);
    EXPECT_EQ(header.numGlCommands, 4);
    EXPECT_EQ(header.numFrames, 2);

    ASSERT_EQ(model->GetTexCoords().size(), 3u);
    EXPECT_EQ(model->GetTexCoords()[2].s, -16);
    EXPECT_EQ(model->GetTexCoords()[2].t, 96);
    ASSERT_EQ(model->GetTriangles().size(), 1u);
    EXPECT_THAT(model->GetTriangles()[0].vertexIndices, ::testing::ElementsAre(2, 0, 1));
    EXPECT_THAT(model->GetTriangles()[0].texCoordIndices, ::testing::ElementsAre(1, 2, 0));
}

TEST(MD2_Reader, UnpacksTheVerticesOfEachFrame) {
    const auto model = LoadModel(Triangle());
    ASSERT_EQ(model->GetFrames().size(), 2u);
    const MD2_Frame& frame = model->GetFrames()[0];
    EXPECT_STREQ(frame.name.data(), "first");
    EXPECT_THAT(frame.scale, ::testing::ElementsAre(0.5f, 2.0f, -1.0f));
    EXPECT_THAT(frame.translate, ::testing::ElementsAre(100, 200, 300));
    ASSERT_EQ(frame.packedVertices.size(), 3u);
    EXPECT_EQ(frame.packedVertices[1].x, 10);
    EXPECT_EQ(frame.packedVertices[1].y, 20);
    EXPECT_EQ(frame.packedVertices[1].z, 30);

    const std::array expected{MD2_Vertex{100, 202, 298, 0}, MD2_Vertex{105, 240, 270, 161},
                              MD2_Vertex{227.5f, 456, 236, 5}};
    ASSERT_EQ(frame.vertices.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(frame.vertices[i].x, expected[i].x);
        EXPECT_EQ(frame.vertices[i].y, expected[i].y);
        EXPECT_EQ(frame.vertices[i].z, expected[i].z);
        EXPECT_EQ(frame.vertices[i].normalIndex, expected[i].normalIndex);
    }
    EXPECT_EQ(model->GetFrames()[1].vertices[2].z, 3.0f);
}

TEST(MD2_Reader, RefusesWhatItCannotOpenAndNamesIt) {
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(FailureOf(std::string("models/nowhere/nothing.md2")), "Error opening file!");
    EXPECT_THAT(::testing::internal::GetCapturedStderr(), ::testing::HasSubstr("models/nowhere/nothing.md2"));
}

TEST(MD2_Reader, RefusesAnotherKindOfFile) {
    for (const std::int32_t ident : {0, 0x32504448, 0x49445032, -1}) {
        std::vector<std::uint8_t> bytes = Triangle().Bytes();
        for (std::size_t i = 0; i < 4; ++i)
            bytes[i] = static_cast<std::uint8_t>(ident >> (8 * i));
        EXPECT_EQ(FailureOf(bytes), "Bad file ident") << ident;
    }
    EXPECT_EQ(FailureOf(std::vector<std::uint8_t>{}), "Bad file ident");
}

TEST(MD2_Reader, RefusesAnotherVersion) {
    for (const std::uint8_t version : {7, 9, 0}) {
        std::vector<std::uint8_t> bytes = Triangle().Bytes();
        bytes[4] = version;
        EXPECT_EQ(FailureOf(bytes), "Bad file version") << int{version};
    }
}

TEST(MD2_VertexNormals, AreUnitVectors) {
    EXPECT_EQ(MD2_VertexNormals.size(), 162u);
    EXPECT_EQ(MD2_VertexNormals[0].x, -0.525731f);
    EXPECT_EQ(MD2_VertexNormals[0].y, 0.0f);
    EXPECT_EQ(MD2_VertexNormals[0].z, 0.850651f);
    for (const MD2_Normal& normal : MD2_VertexNormals)
        EXPECT_NEAR(normal.x * normal.x + normal.y * normal.y + normal.z * normal.z, 1.0f, 1e-5f);
}

}  // namespace
}  // namespace tolvane

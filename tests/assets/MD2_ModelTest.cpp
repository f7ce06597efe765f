#include "assets/MD2_Model.h"

#include <gmock/gmock.h>

#include "assets/Gl.h"
#include "assets/LoadedModel.h"
#include "support/GlWindow.h"

namespace tolvane {

static void PrintTo(const MD2Anim& group, std::ostream* out) {
    *out << group.firstFrame << " to " << group.lastFrame << ", count " << group.frameCount;
}

static bool operator==(const MD2Anim& a, const MD2Anim& b) {
    return a.firstFrame == b.firstFrame && a.lastFrame == b.lastFrame && a.frameCount == b.frameCount;
}

namespace {

using test::LoadModel;
using test::SquareModel;
using Groups = std::map<std::string, MD2Anim>;

TEST(MD2_Model, AnswersItsFrameGroupsByName) {
    const auto model = LoadModel(SquareModel({"stand0", "stand1", "stand2", "run0"}));
    const MD2Anim* stand = model->GetAnimation("stand");
    ASSERT_NE(stand, nullptr);
    EXPECT_EQ(*stand, (MD2Anim{0, 2, 2}));
    ASSERT_NE(model->GetAnimation("run"), nullptr);
    EXPECT_EQ(*model->GetAnimation("run"), (MD2Anim{3, 3, 0}));
    EXPECT_EQ(model->GetAnimation("jump"), nullptr);
}

TEST(MD2_Model, GroupsFramesByTheNameInFrontOfTheirNumber) {
    struct Case {
        std::vector<std::string> frames;
        Groups groups;
    };
    const Case cases[] = {
        {{"only"}, {{"only", {0, 0, 0}}}},
        {{"frame0"}, {{"frame", {0, 0, 0}}}},
        {{"idle", "idle", "walk"}, {{"idle", {0, 1, 1}}, {"walk", {2, 2, 0}}}},
        {{"attack001", "attack002"}, {{"attack", {0, 1, 1}}}},
        {{"pain100", "pain101"}, {{"pain1", {0, 1, 1}}}},
        {{"pain099", "pain100"}, {{"pain", {0, 0, 0}}, {"pain1", {1, 1, 0}}}},
        {{"pain99", "pain1000"}, {{"pain", {0, 1, 1}}}},
        {{"run9x2", "run_1"}, {{"run9", {0, 0, 0}}, {"run_", {1, 1, 0}}}},
        {{"run1", "stand1", "run2", "run3"}, {{"run", {0, 0, 0}}, {"stand", {1, 1, 0}}}},
        {{"12", "stand1"}, {{"", {0, 0, 0}}, {"stand", {1, 1, 0}}}},
        {{"stand1", "12", "7"}, {{"stand", {0, 0, 0}}, {"", {1, 2, 1}}}},
        {{"101"}, {{"1", {0, 0, 0}}}},
        {{"001"}, {{"", {0, 0, 0}}}},
        {{"sixteencharacter", "sixteencharacter"}, {{"sixteencharacter", {0, 1, 1}}}},
        {{""}, {{"", {0, 0, 0}}}},
    };
    for (const Case& row : cases)
        EXPECT_EQ(LoadModel(SquareModel(row.frames))->GetAnimations(), row.groups)
            << ::testing::PrintToString(row.frames);
}

TEST(MD2_Model, CountsTextureCoordinatesFromTheBottomOnePairACorner) {
    test::Md2File file = SquareModel({"frame0"});
    file.skinWidth = 128;
    file.skinHeight = 32;
    file.texCoords = {{0, 32}, {0, 0}, {64, 8}, {128, -32}};
    const auto model = LoadModel(file);
    const std::vector<std::pair<float, float>> expected = {{0.0f, 0.0f}, {0.0f, 1.0f},  {0.5f, 0.75f},
                                                           {0.0f, 0.0f}, {0.5f, 0.75f}, {1.0f, 2.0f}};
    ASSERT_EQ(model->GetTexturePoints().size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(model->GetTexturePoints()[i].u, expected[i].first) << i;
        EXPECT_EQ(model->GetTexturePoints()[i].v, expected[i].second) << i;
    }
}

TEST(MD2_Model, KeepsItsTextureCoordinatesInABufferAndFreesIt) {
    auto model = LoadModel(SquareModel({"frame0"}));
    const unsigned int buffer = model->GetTextureCoordBuffer();
    ASSERT_GT(buffer, 0u);
    std::vector<MD2_TexturePoint> stored(model->GetTexturePoints().size());
    glBindBufferARB(GL_ARRAY_BUFFER, buffer);
    glGetBufferSubDataARB(GL_ARRAY_BUFFER, 0,
                          static_cast<GLsizeiptrARB>(stored.size() * sizeof(MD2_TexturePoint)),
                          stored.data());
    glBindBufferARB(GL_ARRAY_BUFFER, 0);
    for (std::size_t i = 0; i < stored.size(); ++i) {
        EXPECT_EQ(stored[i].u, model->GetTexturePoints()[i].u);
        EXPECT_EQ(stored[i].v, model->GetTexturePoints()[i].v);
    }
    model.reset();
    EXPECT_FALSE(glIsBufferARB(buffer));
}

TEST(MD2_Model, LeavesArraysAndBuffersAsItFoundThem) {
    const auto model = LoadModel(SquareModel({"frame0"}));
    const auto instance = test::MakeInstance(*model);
    instance->DrawVBO(false, nullptr, nullptr, nullptr);
    instance->DrawVertexArray(false, nullptr, nullptr, nullptr);
    for (const GLenum array : {GL_VERTEX_ARRAY, GL_NORMAL_ARRAY, GL_TEXTURE_COORD_ARRAY})
        EXPECT_FALSE(glIsEnabled(array));
    GLint bound = -1;
    glGetIntegerv(GL_ARRAY_BUFFER_BINDING, &bound);
    EXPECT_EQ(bound, 0);
}

}  // namespace
}  // namespace tolvane

#include "scene/Skybox.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstddef>
#include <stdexcept>

#include "assets/Gl.h"
#include "scene/Stage.h"

namespace tolvane {

namespace {

using ::testing::IsEmpty;

using test::IsColor;
using test::Rgb;

// What a player sees who looks along a direction.
struct View {
    const char* name;
    Vertex direction;
    Vertex up;
    std::size_t texture;
};

constexpr std::array views{
    View{"up", {0.0f, 1.0f, 0.0f}, {0.0f, 0.0f, 1.0f}, 0},
    View{"down", {0.0f, -1.0f, 0.0f}, {0.0f, 0.0f, 1.0f}, 1},
    View{"along negative z", {0.0f, 0.0f, -1.0f}, {0.0f, 1.0f, 0.0f}, 2},
    View{"along positive z", {0.0f, 0.0f, 1.0f}, {0.0f, 1.0f, 0.0f}, 3},
    View{"along positive x", {1.0f, 0.0f, 0.0f}, {0.0f, 1.0f, 0.0f}, 4},
    View{"along negative x", {-1.0f, 0.0f, 0.0f}, {0.0f, 1.0f, 0.0f}, 5},
};

// A corner of a texture and the corner of the cube, in half edges, that shows it.
struct Corner {
    std::size_t texture;
    int u, v;
    int x, y, z;
};

constexpr std::array corners{
    Corner{0, 1, 1, -1, 1, -1}, Corner{0, 0, 1, -1, 1, 1},   Corner{0, 0, 0, 1, 1, 1},
    Corner{0, 1, 0, 1, 1, -1},  Corner{1, 1, 1, 1, -1, -1},  Corner{1, 0, 1, 1, -1, 1},
    Corner{1, 0, 0, -1, -1, 1}, Corner{1, 1, 0, -1, -1, -1}, Corner{2, 0, 0, -1, -1, -1},
    Corner{2, 1, 0, -1, 1, -1}, Corner{2, 1, 1, 1, 1, -1},   Corner{2, 0, 1, 1, -1, -1},
    Corner{3, 0, 0, 1, -1, 1},  Corner{3, 1, 0, 1, 1, 1},    Corner{3, 1, 1, -1, 1, 1},
    Corner{3, 0, 1, -1, -1, 1}, Corner{4, 0, 1, 1, -1, 1},   Corner{4, 0, 0, 1, -1, -1},
    Corner{4, 1, 0, 1, 1, -1},  Corner{4, 1, 1, 1, 1, 1},    Corner{5, 0, 1, -1, -1, -1},
    Corner{5, 0, 0, -1, -1, 1}, Corner{5, 1, 0, -1, 1, 1},   Corner{5, 1, 1, -1, 1, -1},
};
static_assert(corners.size() == 24);

class SkyboxTest : public test::Stage {
protected:
    void SetUp() override {
        Stage::SetUp();
        glDisable(GL_LIGHTING);
    }

    // One colour for each texture.
    static std::vector<unsigned int> PlainTextures() {
        std::vector<unsigned int> textures;
        for (int i = 0; i < 6; ++i)
            textures.push_back(MakeTexture(1, {PlainColor(i)}));
        return textures;
    }

    static Rgb PlainColor(int texture) { return {40 + texture * 40, 255 - texture * 40, texture % 2 * 255}; }

    static void Draw(Skybox& sky, bool useDisplayLists) {
        sky.Draw(renderVertexBuffer, useDisplayLists, false, true, nullptr, nullptr);
    }
};

class SkyboxLists : public SkyboxTest, public ::testing::WithParamInterface<bool> {};

INSTANTIATE_TEST_SUITE_P(StoredAndAnew, SkyboxLists, ::testing::Bool());

TEST_P(SkyboxLists, ShowsOnePictureInEachDirection) {
    Skybox sky(200.0f, PlainTextures());
    for (const View& view : views) {
        Clear();
        LookAlong(view.direction, view.up);
        Draw(sky, GetParam());
        EXPECT_THAT(ColorAt(Scale(view.direction, 200.0f)),
                    IsColor(PlainColor(static_cast<int>(view.texture))))
            << view.name;
    }
}

TEST_P(SkyboxLists, TurnsEachPictureTheRightWay) {
    // The four quarters of a picture, bottom left, bottom right, top left, top right.
    const std::vector<Rgb> quarters{{255, 0, 0}, {0, 255, 0}, {0, 0, 255}, {255, 255, 255}};
    Skybox sky(200.0f, std::vector<unsigned int>(6, MakeTexture(2, quarters)));
    for (const Corner& corner : corners) {
        const View& view = views[corner.texture];
        LookAlong(view.direction, view.up);
        Draw(sky, GetParam());
        // A quarter of the way from the middle of the face towards its corner.
        const auto near = [](int sign, float middle) {
            return middle != 0.0f ? middle * 200.0f : sign * 50.0f;
        };
        const Vertex point{near(corner.x, view.direction.x), near(corner.y, view.direction.y),
                           near(corner.z, view.direction.z)};
        EXPECT_THAT(ColorAt(point), IsColor(quarters[static_cast<std::size_t>(corner.v * 2 + corner.u)]))
            << view.name << ", corner " << corner.u << ", " << corner.v;
    }
}

TEST_P(SkyboxLists, FillsTheWholeViewBehindEverything) {
    Skybox sky(200.0f, PlainTextures());
    LookAlong({1.0f, 1.0f, 1.0f}, {0.0f, 1.0f, 0.0f});
    const test::Picture empty = test::ReadPicture();
    Draw(sky, GetParam());
    EXPECT_EQ(test::ReadPicture().CountDifferences(empty, 0), test::GlWindow::width * test::GlWindow::height);

    std::vector<float> depth(static_cast<std::size_t>(test::GlWindow::width * test::GlWindow::height));
    glReadPixels(0, 0, test::GlWindow::width, test::GlWindow::height, GL_DEPTH_COMPONENT, GL_FLOAT,
                 depth.data());
    EXPECT_EQ(*std::min_element(depth.begin(), depth.end()), 1.0f);
}

TEST_P(SkyboxLists, StaysInPlaceWhenTheEyeMoves) {
    Skybox sky(200.0f, PlainTextures());
    LookAlong({1.0f, 0.0f, -1.0f}, {0.0f, 1.0f, 0.0f});
    glTranslatef(-100.0f, 0.0f, 0.0f);
    Draw(sky, GetParam());
    EXPECT_THAT(ColorAt({195.0f, 0.0f, -200.0f}), IsColor(PlainColor(2)));
    // A sky about the eye would show the picture straight ahead here.
    EXPECT_THAT(ColorAt({200.0f, 0.0f, -150.0f}), IsColor(PlainColor(4)));
}

TEST_P(SkyboxLists, LeavesBlendingAloneAndLightTexturesAndDepthOn) {
    Skybox sky(200.0f, PlainTextures());
    for (const bool blending : {false, true}) {
        (blending ? glEnable : glDisable)(GL_BLEND);
        glDisable(GL_TEXTURE_2D);
        Draw(sky, GetParam());
        EXPECT_EQ(glIsEnabled(GL_BLEND), blending);
        EXPECT_TRUE(glIsEnabled(GL_LIGHTING));
        EXPECT_TRUE(glIsEnabled(GL_TEXTURE_2D));
        GLboolean writesDepth = GL_FALSE;
        glGetBooleanv(GL_DEPTH_WRITEMASK, &writesDepth);
        EXPECT_TRUE(writesDepth);
    }
}

TEST_F(SkyboxTest, IsLeftOutOfTheSelectionPass) {
    Skybox sky(200.0f, PlainTextures());
    LookAlong({0.0f, 0.0f, -1.0f}, {0.0f, 1.0f, 0.0f});
    const auto hits =
        Pick({512, 384}, [&] { sky.Draw(renderVertexBuffer, true, true, false, nullptr, nullptr); });
    EXPECT_THAT(hits, IsEmpty());
    EXPECT_FALSE(glIsEnabled(GL_LIGHTING));
}

TEST_F(SkyboxTest, CannotBeMadeOfFewerThanSixTextures) {
    EXPECT_THROW(Skybox(200.0f, std::vector<unsigned int>(5, 0)), std::out_of_range);
    EXPECT_THROW(Skybox(200.0f, {}), std::out_of_range);

    // The list that was under way is closed, so that GL draws on.
    int openList = -1;
    glGetIntegerv(GL_LIST_INDEX, &openList);
    EXPECT_EQ(openList, 0);
}

TEST_F(SkyboxTest, ShowsItsPicturesUnlitInFullWhite) {
    Skybox sky(200.0f, std::vector<unsigned int>(6, MakeTexture(1, {{10, 20, 30}})));
    LookAlong({0.0f, 0.0f, -1.0f}, {0.0f, 1.0f, 0.0f});
    glEnable(GL_LIGHTING);
    glColor4f(0.5f, 0.0f, 0.0f, 0.5f);
    Draw(sky, true);
    EXPECT_THAT(ColorAt({0.0f, 0.0f, -200.0f}), IsColor(Rgb{10, 20, 30}));
}

}  // namespace

}  // namespace tolvane

#include "scene/ChessBoard3D.h"

#include <gmock/gmock.h>

#include "assets/Gl.h"
#include "scene/Props.h"
#include "scene/Stage.h"

namespace tolvane {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

using test::IsColor;
using test::Rgb;
using ::testing::Not;

constexpr Rgb black{0, 0, 0};
constexpr Rgb red{255, 0, 0};

constexpr std::array corners{
    Vertex{-19.2f, -18.8f, 19.45f},
    Vertex{-19.2f, -18.8f, -18.9f},
    Vertex{18.35f, -18.8f, -19.05f},
    Vertex{18.35f, -18.8f, 19.25f},
};

constexpr Vertex farEye{0.0f, 5.0f, 40.0f};
constexpr Vertex nearEye{0.0f, 5.0f, 10.0f};

class ChessBoard3DTest : public test::Stage {
protected:
    void Draw(const Vertex& eye, bool blending = false, int renderMode = renderVertexBuffer) {
        const Vertex light{0.0f, 30.0f, 0.0f};
        board.Draw(renderMode, true, false, blending, &eye, &light);
    }

    // The middle of a flame as seen from above, where it stands upright on the picture.
    static Vertex MiddleFromAbove(const Vertex& corner) { return {corner.x, corner.y, corner.z - 2.0f}; }

    unsigned int white = MakeTexture(1, {{255, 255, 255}});
    test::SquareProp model{8.0f, white};
    ParticleEffect flame = test::OneFlame(white);
    ChessBoard3D board{model.Instance(), nullptr, &flame};
};

TEST_F(ChessBoard3DTest, BurnsAtItsCornersWhileTheCameraIsAway) {
    LookDown(25.0f);
    board.UpdateEffects(0.1f, &farEye);
    Draw(farEye);
    EXPECT_TRUE(board.FlamesVisible());
    for (const Vertex& corner : corners)
        EXPECT_THAT(ColorAt(MiddleFromAbove(corner)), IsColor(red)) << corner.x << ", " << corner.z;

    Clear();
    Draw(nearEye);
    EXPECT_FALSE(board.FlamesVisible());
    for (const Vertex& corner : corners)
        EXPECT_THAT(ColorAt(MiddleFromAbove(corner)), IsColor(black));
}

TEST_F(ChessBoard3DTest, ShowsItsModelWithAndWithoutTheFlames) {
    LookAhead(25.0f);
    for (const Vertex& eye : {farEye, nearEye}) {
        Clear();
        Draw(eye);
        EXPECT_THAT(ColorAt({3.0f, 3.0f, 0.0f}), Not(IsColor(black)));
        EXPECT_THAT(ColorAt({5.0f, 3.0f, 0.0f}), IsColor(black));
    }
}

TEST_F(ChessBoard3DTest, HasFlamesBelowTheBoard) {
    LookAhead(25.0f);
    board.UpdateEffects(0.1f, &farEye);
    Draw(farEye);
    for (const Vertex& corner : corners) {
        EXPECT_THAT(ColorAt({corner.x, -18.8f + 1.1f, 0.0f}), IsColor(red));
        EXPECT_THAT(ColorAt({corner.x, -18.8f + 2.9f, 0.0f}), IsColor(red));
        EXPECT_THAT(ColorAt({corner.x, -18.8f + 0.9f, 0.0f}), IsColor(black));
    }
}

struct EyeRow {
    Vertex eye;
    bool burns;
};

class ChessBoard3DEye : public ChessBoard3DTest, public ::testing::WithParamInterface<EyeRow> {};

TEST_P(ChessBoard3DEye, DecidesAboutTheFlames) {
    const auto& [eye, burns] = GetParam();
    LookDown(25.0f);
    board.UpdateEffects(0.1f, &eye);
    Draw(eye);
    EXPECT_EQ(board.FlamesVisible(), burns);
    for (const Vertex& corner : corners)
        EXPECT_THAT(ColorAt(MiddleFromAbove(corner)), IsColor(burns ? red : black));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ChessBoard3DEye,
    ::testing::Values(EyeRow{{19.0f, 50.0f, 19.0f}, false}, EyeRow{{-19.0f, -50.0f, -19.0f}, false},
                      EyeRow{{19.01f, 0.0f, 0.0f}, true}, EyeRow{{-19.01f, 3.0f, 0.0f}, true},
                      EyeRow{{0.0f, 3.0f, 19.01f}, true}, EyeRow{{0.0f, 3.0f, -19.01f}, true},
                      EyeRow{{30.0f, 3.0f, 30.0f}, true}));

TEST_F(ChessBoard3DTest, CannotBePicked) {
    LookAhead(25.0f);
    const auto hits = Pick(PixelOf({0.0f, 0.0f, 0.0f}),
                           [&] { board.Draw(renderVertexBuffer, true, true, false, nullptr, nullptr); });
    EXPECT_THAT(hits, IsEmpty());
}

TEST_F(ChessBoard3DTest, MovesItsFlamesWhenItIsDrawn) {
    EXPECT_FALSE(board.UpdateEffects(0.1f, &farEye));
    EXPECT_THAT(flame.GetActive(), IsEmpty());
    board.Draw(renderVertexBuffer, true, true, false, &farEye, nullptr);
    EXPECT_THAT(flame.GetActive(), IsEmpty());

    Draw(nearEye);
    ASSERT_THAT(flame.GetActive(), SizeIs(1));
    const float age = flame.GetActive().front().age;
    Draw(nearEye);
    EXPECT_NEAR(flame.GetActive().front().age, age + 0.1f, 1e-5f);
}

TEST_F(ChessBoard3DTest, IsBusyForGoodButLeftOutWhenOutside) {
    EXPECT_TRUE(board.IsFinished());
    EXPECT_TRUE(board.skipWhenOutside);
    EXPECT_TRUE(board.active);
}

TEST_F(ChessBoard3DTest, TakesItsBoundFromTheModel) {
    EXPECT_FLOAT_EQ(board.boundRadius, 4.0f);
    EXPECT_TRUE(Equal(board.boundCentre, {0.0f, 0.0f, 0.0f}));
}

TEST_F(ChessBoard3DTest, GivesTheModelItsMaterialAndHoldsItStill) {
    const Material& material = *model.Instance()->GetMaterial();
    EXPECT_THAT(material.GetAmbient(), ElementsAre(0.2f, 0.2f, 0.2f, 1.0f));
    EXPECT_THAT(material.GetDiffuse(), ElementsAre(0.3f, 0.3f, 0.3f, 1.0f));
    EXPECT_THAT(material.GetSpecular(), ElementsAre(0.0f, 0.0f, 0.0f, 1.0f));
    EXPECT_FLOAT_EQ(material.GetShininess(), 50.0f);
    EXPECT_EQ(model.Instance()->GetMode(), MD2_AnimationMode::Freeze);

    board.Update(renderVertexBuffer, 1.0f);
    EXPECT_EQ(model.Instance()->GetCurrentFrame(), 0);
}

TEST_F(ChessBoard3DTest, MovesAndTurnsTheModelButNotTheFlames) {
    LookAhead(25.0f);
    board.Translate(10.0f, 4.0f, 0.0f);
    board.RotateZ(45.0f);
    board.UpdateEffects(0.1f, &farEye);
    Draw(farEye);
    EXPECT_THAT(ColorAt({10.0f, 4.0f + 5.0f, 0.0f}), Not(IsColor(black)));
    EXPECT_THAT(ColorAt({10.0f + 3.5f, 4.0f + 3.5f, 0.0f}), IsColor(black));
    EXPECT_THAT(ColorAt({-3.0f, 0.0f, 0.0f}), IsColor(black));
    EXPECT_THAT(ColorAt({corners[0].x, -18.8f + 2.0f, 0.0f}), IsColor(red));
}

TEST_F(ChessBoard3DTest, AddsTheFlamesToThePictureWhereBlendingIsOn) {
    LookDown(25.0f);
    board.UpdateEffects(0.1f, &farEye);
    Clear(0.0f, 0.0f, 1.0f);
    Draw(farEye, true);
    EXPECT_THAT(ColorAt(MiddleFromAbove(corners[0])), IsColor(Rgb{255, 0, 255}));
    Draw(farEye, false);
    EXPECT_THAT(ColorAt(MiddleFromAbove(corners[0])), IsColor(Rgb{255, 0, 0}));
}

TEST_F(ChessBoard3DTest, LightsTheModelAloneThroughItsShader) {
    LookAhead(25.0f);
    test::LightPosShader shader;
    ChessBoard3D lit(model.Instance(), shader.Get(), &flame);
    const Vertex light{20.0f, 60.0f, 40.0f};
    lit.UpdateEffects(0.1f, &farEye);
    lit.Draw(renderVertexBuffer, true, false, false, &farEye, &light);
    // The shader is fed y and z exchanged.
    EXPECT_THAT(ColorAt({0.0f, 0.0f, 0.0f}), IsColor(Rgb{51, 102, 153}));
    EXPECT_THAT(ColorAt({corners[0].x, -18.8f + 2.0f, 0.0f}), IsColor(red));
}

TEST_F(ChessBoard3DTest, LooksTheSameInEveryRenderMode) {
    LookAhead(25.0f);
    Draw(farEye, false, renderVertexBuffer);
    const test::Picture picture = test::ReadPicture();
    for (const int mode : {renderVertexArray, renderImmediate}) {
        Clear();
        Draw(farEye, false, mode);
        EXPECT_THAT(ColorAt({0.0f, 0.0f, 0.0f}), Not(IsColor(black)));
        EXPECT_EQ(test::ReadPicture().CountDifferences(picture, 0), 0) << mode;
    }
}

}  // namespace

}  // namespace tolvane

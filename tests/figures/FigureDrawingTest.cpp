#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "assets/Gl.h"
#include "assets/Material.h"
#include "assets/ParticleEffect.h"
#include "figures/Troupe.h"
#include "support/GlWindow.h"

namespace tolvane::test {

namespace {

constexpr Vertex eye{0.0f, 0.0f, 30.0f};
constexpr Vertex light{0.0f, 50.0f, 0.0f};
constexpr int edge = GlWindow::height;
constexpr float reach = 4.0f;  // the view shows x and y from -reach to reach

struct Rgb {
    int red;
    int green;
    int blue;

    bool operator==(const Rgb&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Rgb& color) {
    return out << color.red << ", " << color.green << ", " << color.blue;
}

constexpr Rgb black{0, 0, 0};
constexpr Rgb litGreen{0, 255, 0};  // what the troupe's shader paints
constexpr int paint = 200;          // the grey of all its pictures

Rgb ColorAt(const Picture& picture, float x, float y) {
    const auto pixel = [](float place) {
        return static_cast<int>((place + reach) / (2.0f * reach) * static_cast<float>(edge));
    };
    return {picture.Red(pixel(x), pixel(y)), picture.Green(pixel(x), pixel(y)),
            picture.Blue(pixel(x), pixel(y))};
}

// The brightest red within a box.
int RedIn(const Picture& picture, float left, float right, float bottom, float top) {
    int brightest = 0;
    for (float x = left; x <= right; x += 0.02f)
        for (float y = bottom; y <= top; y += 0.02f)
            brightest = std::max(brightest, ColorAt(picture, x, y).red);
    return brightest;
}

std::array<float, 16> Modelview() {
    std::array<float, 16> matrix{};
    glGetFloatv(GL_MODELVIEW_MATRIX, matrix.data());
    return matrix;
}

// A parallel view along -z, without light, on black.
class FigureDrawingTest : public testing::Test {
protected:
    void SetUp() override {
        glViewport(0, 0, edge, edge);
        glMatrixMode(GL_PROJECTION);
        glLoadIdentity();
        glOrtho(-reach, reach, -reach, reach, -50.0, 50.0);
        glMatrixMode(GL_MODELVIEW);
        glLoadIdentity();
        glEnable(GL_TEXTURE_2D);
        glEnable(GL_DEPTH_TEST);
        glDisable(GL_LIGHTING);
        glDisable(GL_BLEND);
    }

    void TearDown() override { EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR)); }

    // A white figure at the origin.
    ChessFigure3D& Place(FigureType type) {
        ChessFigure3D& figure = troupe.Place(Player::White, type, 0, 0);
        *figure.GetPosition() = {};
        return figure;
    }

    static Picture Draw(ChessFigure3D& figure, int renderMode = renderVertexBuffer, bool blending = true) {
        glClearColor(0.0f, 0.0f, 0.0f, 0.0f);
        glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        glDisable(GL_LIGHTING);  // effects leave it on
        glPushMatrix();
        figure.Draw(renderMode, true, false, blending, &eye, &light);
        glPopMatrix();
        return ReadPicture();
    }

    static void FadeToHalf(ChessFigure3D& figure) { figure.FadeOut(1.0f, &eye); }

    Troupe troupe;
};

const std::array allTypes{FigureType::Pawn,   FigureType::Rook,  FigureType::Knight,
                          FigureType::Bishop, FigureType::Queen, FigureType::King};

}  // namespace

TEST_F(FigureDrawingTest, ShowsEachFigureInItsShaderInAllThreeRenderModes) {
    for (const FigureType type : allTypes)
        for (const int mode : {renderVertexBuffer, renderVertexArray, renderImmediate})
            EXPECT_EQ(ColorAt(Draw(Place(type), mode), 0.0f, 0.0f), litGreen) << static_cast<int>(type);
}

TEST_F(FigureDrawingTest, BlendsAFigureThatFades) {
    for (const FigureType type : allTypes) {
        ChessFigure3D& figure = Place(type);
        FadeToHalf(figure);
        EXPECT_NEAR(ColorAt(Draw(figure), 0.0f, 0.0f).red, paint / 2, 3);
        EXPECT_FALSE(glIsEnabled(GL_BLEND));
        EXPECT_NEAR(ColorAt(Draw(figure, renderVertexBuffer, false), 0.0f, 0.0f).red, paint, 3);
    }
}

TEST_F(FigureDrawingTest, DoesNotGoBackToItsShaderOnceItHasBegunToFade) {
    ChessFigure3D& figure = Place(FigureType::Pawn);
    figure.FadeOut(0.0f, &eye);
    for (int i = 0; i < 3; ++i)
        EXPECT_NE(ColorAt(Draw(figure), 0.0f, 0.0f), litGreen);
}

TEST_F(FigureDrawingTest, LeavesBlendingAloneWhileItIsLit) {
    ChessFigure3D& figure = Place(FigureType::Pawn);
    glEnable(GL_BLEND);
    Draw(figure);
    EXPECT_TRUE(glIsEnabled(GL_BLEND));
}

TEST_F(FigureDrawingTest, LeavesTheMatrixAsTheFiguresOwn) {
    for (const FigureType type : allTypes) {
        ChessFigure3D& figure = Place(type);
        *figure.GetPosition() = {1.0f, 2.0f, 3.0f};
        figure.RotateX(10.0f);
        figure.RotateY(20.0f);
        figure.RotateZ(30.0f);
        glTranslatef(1.0f, 2.0f, 3.0f);
        glRotatef(10.0f, 1.0f, 0.0f, 0.0f);
        glRotatef(20.0f, 0.0f, 1.0f, 0.0f);
        glRotatef(30.0f, 0.0f, 0.0f, 1.0f);
        const auto expected = Modelview();
        glLoadIdentity();
        figure.Draw(renderVertexBuffer, true, false, true, &eye, &light);
        EXPECT_EQ(Modelview(), expected);
        glLoadIdentity();
    }
}

TEST_F(FigureDrawingTest, ShowsShotsAndHitsWhileTheirFlagsAreSet) {
    ChessFigure3D& pawn = Place(FigureType::Pawn);
    pawn.attackActive = pawn.firstShotPending = true;
    pawn.RunAttack(0.1f, &eye);
    EXPECT_GT(RedIn(Draw(pawn), 0.0f, 0.7f, 1.2f, 2.0f), 0);
    pawn.attackActive = false;
    EXPECT_EQ(RedIn(Draw(pawn), 0.0f, 0.7f, 1.2f, 2.0f), 0);

    pawn.damageActive = true;
    pawn.RunDamage(0.1f, &eye);
    EXPECT_GT(RedIn(Draw(pawn), -0.5f, 0.5f, 0.8f, 1.5f), 0);
    pawn.damageActive = false;
    EXPECT_EQ(RedIn(Draw(pawn), -0.5f, 0.5f, 0.8f, 1.5f), 0);

    pawn.heavyDamageActive = true;
    pawn.RunDamage(0.1f, &eye);
    EXPECT_GT(RedIn(Draw(pawn), -0.5f, 0.5f, 0.8f, 1.5f), 0);
}

TEST_F(FigureDrawingTest, ShowsBothHitsTogetherThoughOnlyTheHeavyOneMoves) {
    ChessFigure3D& pawn = Place(FigureType::Pawn);
    pawn.damageEmitter->SetPosition({-3.0f, 0.0f, 0.0f}, {});
    pawn.heavyDamageEmitter->SetPosition({3.0f, 0.0f, 0.0f}, {});
    pawn.damageActive = true;
    pawn.RunDamage(0.1f, &eye);
    pawn.heavyDamageActive = true;
    pawn.RunDamage(0.1f, &eye);
    const Picture picture = Draw(pawn);
    EXPECT_GT(RedIn(picture, -3.9f, -2.0f, -1.0f, 1.0f), 0);
    EXPECT_GT(RedIn(picture, 2.0f, 3.9f, -1.0f, 1.0f), 0);
}

TEST_F(FigureDrawingTest, ShowsTheRooksShotFromBothBarrels) {
    ChessFigure3D& rook = Place(FigureType::Rook);
    rook.attackActive = rook.firstShotPending = true;
    rook.RunAttack(0.1f, &eye);
    const Picture picture = Draw(rook);
    EXPECT_GT(RedIn(picture, 0.9f, 1.7f, 0.5f, 1.8f), 0);
    EXPECT_GT(RedIn(picture, -1.6f, -0.8f, 0.5f, 1.8f), 0);
    // The left flame is the right one, 2.5 units over.
    for (float x = 0.9f; x < 1.7f; x += 0.1f)
        for (float y = 0.5f; y < 1.8f; y += 0.1f)
            EXPECT_NEAR(ColorAt(picture, x, y).red, ColorAt(picture, x - 2.5f, y).red, 2);
}

TEST_F(FigureDrawingTest, ShowsNothingOfAKingButHisExplosion) {
    ChessFigure3D& king = Place(FigureType::King);
    const Picture before = Draw(king);
    king.attackActive = true;
    king.heavyDamageActive = true;
    EXPECT_EQ(Draw(king).CountDifferences(before, 0), 0);
    king.damageActive = true;
    king.RunDamage(0.1f, &eye);
    EXPECT_GT(RedIn(Draw(king), -1.0f, 1.0f, 1.0f, 3.5f), 0);
}

TEST_F(FigureDrawingTest, ShowsCanAndSaucerInTheWorldAndNotWithTheQueen) {
    Queen3D& queen = troupe.PlaceQueen(Player::White, 0, 0);
    *queen.GetPosition() = {-2.0f, -2.0f, 0.0f};
    queen.RotateY(30.0f);
    queen.canPosition = {2.0f, 2.0f, 0.0f};
    queen.ufoPosition = {2.0f, -2.0f, 0.0f};
    queen.canLit = queen.ufoLit = true;
    const Picture alone = Draw(queen);
    EXPECT_EQ(ColorAt(alone, -2.0f, -2.0f), litGreen);
    EXPECT_EQ(ColorAt(alone, 2.0f, 2.0f), black);
    EXPECT_EQ(ColorAt(alone, 2.0f, -2.0f), black);

    queen.canVisible = true;
    const Picture withCan = Draw(queen);
    EXPECT_EQ(ColorAt(withCan, 2.0f, 2.0f), litGreen);
    EXPECT_EQ(ColorAt(withCan, 2.0f, -2.0f), black);
    EXPECT_EQ(queen.canShader, &troupe.Light());

    queen.ufoVisible = true;
    const Picture withBoth = Draw(queen);
    EXPECT_EQ(ColorAt(withBoth, 2.0f, 2.0f), litGreen);
    EXPECT_EQ(ColorAt(withBoth, 2.0f, -2.0f), litGreen);
    EXPECT_EQ(queen.ufoShader, &troupe.Light());
}

TEST_F(FigureDrawingTest, BlendsCanAndSaucerUntilTheyAreLit) {
    Queen3D& queen = troupe.PlaceQueen(Player::White, 0, 0);
    queen.canPosition = {2.0f, 2.0f, 0.0f};
    queen.ufoPosition = {2.0f, -2.0f, 0.0f};
    queen.canVisible = queen.ufoVisible = true;
    queen.can->GetMaterial()->GetColor()[3] = 0.5f;
    queen.ufo->GetMaterial()->GetColor()[3] = 0.25f;
    const Picture picture = Draw(queen);
    EXPECT_NEAR(ColorAt(picture, 2.0f, 2.0f).red, paint / 2, 3);
    EXPECT_NEAR(ColorAt(picture, 2.0f, -2.0f).red, paint / 4, 3);
    EXPECT_FALSE(glIsEnabled(GL_BLEND));
    EXPECT_EQ(queen.canShader, nullptr);
    EXPECT_EQ(queen.ufoShader, nullptr);
}

TEST_F(FigureDrawingTest, KeepsTheMatrixWhenItDrawsCanOrSaucer) {
    Queen3D& queen = troupe.PlaceQueen(Player::White, 0, 0);
    queen.canPosition = {2.0f, 2.0f, 0.0f};
    const auto before = Modelview();
    queen.DrawCan(renderVertexBuffer, true, false, &eye, &light);
    queen.DrawUfo(renderVertexBuffer, true, false, &eye, &light);
    EXPECT_EQ(Modelview(), before);
}

TEST_F(FigureDrawingTest, ShowsBeamInTheWorldAndGlowAndJetWithTheQueen) {
    Queen3D& queen = troupe.PlaceQueen(Player::White, 0, 0);
    *queen.GetPosition() = {-2.0f, -2.0f, 0.0f};
    queen.beamEmitter.SetPosition({2.0f, 2.0f, 0.0f}, {});
    queen.beamActive = queen.glowActive = queen.engineActive = true;
    queen.UpdateEffects(0.1f, &eye);
    const auto blueAt = [](const Picture& picture, float x, float y) {
        int brightest = 0;
        for (float dx = -0.5f; dx <= 0.5f; dx += 0.02f)
            for (float dy = -0.5f; dy <= 1.0f; dy += 0.02f)
                brightest = std::max(brightest, ColorAt(picture, x + dx, y + dy).blue);
        return brightest;
    };
    const Picture all = Draw(queen);
    EXPECT_GT(blueAt(all, 2.0f, 2.0f), 0);    // beam
    EXPECT_GT(blueAt(all, -2.0f, -0.2f), 0);  // glow, 1.8 above her
    EXPECT_GT(RedIn(all, -2.4f, -1.6f, -3.0f, -2.6f) + RedIn(all, -2.4f, -1.6f, -2.6f, -1.2f), 0);  // jet
    queen.beamActive = queen.glowActive = queen.engineActive = false;
    const Picture none = Draw(queen);
    EXPECT_EQ(blueAt(none, 2.0f, 2.0f), 0);
    EXPECT_EQ(blueAt(none, -2.0f, -0.2f), 0);
    EXPECT_EQ(RedIn(none, -4.0f, 3.9f, -4.0f, 3.9f), 0);
}

TEST_F(FigureDrawingTest, CanBePickedButNotByItsEffects) {
    ChessFigure3D& rook = Place(FigureType::Rook);
    rook.attackActive = rook.firstShotPending = true;
    rook.RunAttack(0.1f, &eye);
    const auto hitsWithin = [&rook](double left, double right, double bottom, double top) {
        std::array<unsigned int, 64> buffer{};
        glSelectBuffer(static_cast<GLsizei>(buffer.size()), buffer.data());
        glRenderMode(GL_SELECT);
        glInitNames();
        glPushName(5);
        glMatrixMode(GL_PROJECTION);
        glPushMatrix();
        glLoadIdentity();
        glOrtho(left, right, bottom, top, -50.0, 50.0);
        glMatrixMode(GL_MODELVIEW);
        glPushMatrix();
        rook.Draw(renderVertexBuffer, true, true, true, nullptr, nullptr);
        glPopMatrix();
        glMatrixMode(GL_PROJECTION);
        glPopMatrix();
        glMatrixMode(GL_MODELVIEW);
        return glRenderMode(GL_RENDER);
    };
    EXPECT_EQ(hitsWithin(-0.2, 0.2, -0.2, 0.2), 1);
    EXPECT_EQ(hitsWithin(0.9, 1.7, 0.5, 1.8), 0);
}

}  // namespace tolvane::test

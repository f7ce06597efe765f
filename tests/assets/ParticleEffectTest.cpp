#include "assets/ParticleEffect.h"

#include <gmock/gmock.h>

#include <functional>
#include <memory>

#include "assets/Gl.h"
#include "assets/Numbers.h"
#include "assets/ParticleEffect3.h"
#include "assets/ParticleEffect4.h"
#include "assets/ParticleEffect6.h"
#include "assets/ParticleEffect7.h"
#include "assets/TextureHandler.h"
#include "support/GlWindow.h"
#include "support/TemporaryFile.h"
#include "support/TgaFile.h"

namespace tolvane {

static bool operator==(const Vertex& a, const Vertex& b) {
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

static void PrintTo(const Vertex& vertex, std::ostream* out) {
    *out << '(' << vertex.x << ", " << vertex.y << ", " << vertex.z << ')';
}

namespace {

constexpr Vertex none{};

class Effects : public ::testing::Test {
protected:
    template <typename Preset>
    std::unique_ptr<ParticleEffect> Make() {
        std::unique_ptr<ParticleEffect> effect;
        test::PrintedBy([&] { effect = std::make_unique<ParticleEffect>(Preset(&textures)); });
        return effect;
    }

    TextureHandler textures;
};

TEST_F(Effects, FlyOnceTheyAreSetUp) {
    const Vertex eye{0, 0, 20};
    const auto flame = Make<ParticleEffect3>();
    flame->SetSize(1.5f, 1.5f, 0.1f, 0.15f);
    for (int i = 0; i < 50; ++i)
        flame->UpdateParticles(0.02f, &eye);
    EXPECT_EQ(flame->GetActive().size(), 50u);
    flame->SetEmissionRate(0);
    for (int i = 0; i < 70; ++i)
        flame->UpdateParticles(0.02f, &eye);
    EXPECT_TRUE(flame->GetActive().empty());
}

TEST_F(Effects, StoreWhatTheirSettersAreGiven) {
    ParticleEffect effect(&textures);
    effect.SetPosition({1, 2, 3}, {4, 5, 6});
    effect.SetDirection({7, 8, 9}, {10, 11, 12});
    effect.SetSpeed(13, 14);
    effect.SetRotationSpeed(15, 16);
    effect.SetRotationAcceleration(17, 18);
    effect.SetAcceleration({19, 20, 21}, 22, 23);
    effect.SetStartColor({24, 25, 26}, {27, 28, 29});
    effect.SetEndColor({30, 31, 32}, {33, 34, 35});
    effect.SetAlpha(36, 37, 38, 39);
    effect.SetSize(40, 41, 42, 43);
    effect.SetLifetime(44, 45);
    EXPECT_EQ(effect.position, (Vertex{1, 2, 3}));
    EXPECT_EQ(effect.positionSpread, (Vertex{4, 5, 6}));
    EXPECT_EQ(effect.direction, (Vertex{7, 8, 9}));
    EXPECT_EQ(effect.directionSpread, (Vertex{10, 11, 12}));
    EXPECT_EQ(effect.accelerationDirection, (Vertex{19, 20, 21}));
    EXPECT_EQ(effect.colorStartMin, (Vertex{24, 25, 26}));
    EXPECT_EQ(effect.colorStartMax, (Vertex{27, 28, 29}));
    EXPECT_EQ(effect.colorEndMin, (Vertex{30, 31, 32}));
    EXPECT_EQ(effect.colorEndMax, (Vertex{33, 34, 35}));
    const std::vector<float> numbers = {effect.speedMin,
                                        effect.speedMax,
                                        effect.spinMin,
                                        effect.spinMax,
                                        effect.spinAccelerationMin,
                                        effect.spinAccelerationMax,
                                        effect.accelerationMin,
                                        effect.accelerationMax,
                                        effect.alphaStartMin,
                                        effect.alphaStartMax,
                                        effect.alphaEndMin,
                                        effect.alphaEndMax,
                                        effect.sizeStartMin,
                                        effect.sizeStartMax,
                                        effect.sizeEndMin,
                                        effect.sizeEndMax,
                                        effect.lifetimeMin,
                                        effect.lifetimeMax};
    EXPECT_THAT(numbers, ::testing::ElementsAre(13, 14, 15, 16, 17, 18, 22, 23, 36, 37, 38, 39, 40, 41, 42,
                                                43, 44, 45));
}

TEST_F(Effects, TakeWholeEmissionRatesOnly) {
    ParticleEffect effect(&textures);
    effect.SetEmissionRate(2.9f);
    EXPECT_EQ(effect.emissionRate, 2);
    effect.SetEmissionRate(-2.9f);
    EXPECT_EQ(effect.emissionRate, -2);
}

TEST_F(Effects, LoadTheirPictureWithoutMipmaps) {
    const test::TemporaryFile picture(test::PlainTga(4, 4, 255, 128, 0), ".tga");
    ParticleEffect effect(&textures);
    const unsigned int id = effect.LoadTexture(picture.Path());
    EXPECT_EQ(textures.GetTextureId(picture.Path()), id);
    glBindTexture(GL_TEXTURE_2D, id);
    for (const auto& [name, value] : {std::pair{GL_TEXTURE_MAG_FILTER, GL_LINEAR},
                                      {GL_TEXTURE_MIN_FILTER, GL_LINEAR},
                                      {GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE},
                                      {GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE}}) {
        GLint actual = 0;
        glGetTexParameteriv(GL_TEXTURE_2D, static_cast<GLenum>(name), &actual);
        EXPECT_EQ(actual, value);
    }
    glBindTexture(GL_TEXTURE_2D, 0);
    EXPECT_EQ(ParticleEffect(nullptr).LoadTexture(picture.Path()), 0u);
}

TEST_F(Effects, PresetsHaveTheirValues) {
    struct Preset {
        const char* name;
        std::unique_ptr<ParticleEffect> effect;
        std::size_t count;
        int rate;
        float variance, lifetimeMin, lifetimeMax;
        Vertex startMin, startMax, endMin, endMax;
        float alphaStart, alphaEnd;
        Vertex position, positionSpread, pull;
        float pullMin, pullMax, sizeStart, sizeEnd, speedMin, speedMax;
        Vertex direction, directionSpread;
        int billboardMode;
    };
    const Vertex blue{0, 0, 1};
    const Vertex paleBlue{0.3f, 0.3f, 1};
    const Vertex greyBlue{0.4f, 0.4f, 1};
    const Vertex olive{0.2f, 0.2f, 0};
    const Vertex yellow{0.8f, 0.8f, 0};
    Preset presets[] = {
        {"3",
         Make<ParticleEffect3>(),
         50,
         3,
         0,
         1,
         1.2f,
         {0.5f, 0, 0},
         {0.5f, 0.1f, 0.1f},
         olive,
         yellow,
         1,
         0.3f,
         none,
         {0.05f, 0.05f, 0.05f},
         {0, 1, 0},
         0,
         0.5f,
         3.5f,
         2,
         0.5f,
         0.8f,
         {0, -0.3f, 0},
         {0.2f, 1, 0.2f},
         2},
        {"4",
         Make<ParticleEffect4>(),
         100,
         5,
         0,
         0.45f,
         0.5f,
         {0.8f, 0, 0},
         {0.8f, 0.1f, 0.1f},
         olive,
         yellow,
         1,
         0.1f,
         none,
         {0.02f, 0.02f, 0.02f},
         {0, 0, -1},
         0,
         0.5f,
         0.3f,
         0.01f,
         3,
         3,
         none,
         none,
         1},
        {"6",       Make<ParticleEffect6>(),
         250,       2,
         0.3f,      2.2f,
         2.5f,      blue,
         paleBlue,  greyBlue,
         blue,      1,
         0.3f,      none,
         {1, 0, 1}, none,
         0,         0,
         0.8f,      0.8f,
         1.3f,      1.3f,
         {0, 1, 0}, {0.2f, 0, 0.2f},
         1},
        {"7",
         Make<ParticleEffect7>(),
         120,
         2,
         0,
         2.5f,
         3,
         blue,
         paleBlue,
         greyBlue,
         blue,
         0.8f,
         0.4f,
         {0, 1.8f, -1.5f},
         {0.1f, 0.1f, 0.1f},
         none,
         0,
         0,
         1,
         0.7f,
         1.3f,
         1.3f,
         none,
         {0.2f, 0.2f, 0.2f},
         1},
    };
    for (const Preset& row : presets) {
        SCOPED_TRACE(row.name);
        const ParticleEffect& effect = *row.effect;
        EXPECT_NE(effect.textureId, 0u);
        EXPECT_EQ(effect.GetPool().size(), row.count);
        EXPECT_EQ(effect.emissionRate, row.rate);
        EXPECT_EQ(effect.emissionVariance, row.variance);
        EXPECT_EQ(effect.lifetimeMin, row.lifetimeMin);
        EXPECT_EQ(effect.lifetimeMax, row.lifetimeMax);
        EXPECT_EQ(effect.colorStartMin, row.startMin);
        EXPECT_EQ(effect.colorStartMax, row.startMax);
        EXPECT_EQ(effect.colorEndMin, row.endMin);
        EXPECT_EQ(effect.colorEndMax, row.endMax);
        EXPECT_EQ(effect.alphaStartMin, row.alphaStart);
        EXPECT_EQ(effect.alphaStartMax, row.alphaStart);
        EXPECT_EQ(effect.alphaEndMin, row.alphaEnd);
        EXPECT_EQ(effect.alphaEndMax, row.alphaEnd);
        EXPECT_EQ(effect.position, row.position);
        EXPECT_EQ(effect.positionSpread, row.positionSpread);
        EXPECT_EQ(effect.accelerationDirection, row.pull);
        EXPECT_EQ(effect.accelerationMin, row.pullMin);
        EXPECT_EQ(effect.accelerationMax, row.pullMax);
        EXPECT_EQ(effect.sizeStartMin, row.sizeStart);
        EXPECT_EQ(effect.sizeStartMax, row.sizeStart);
        EXPECT_EQ(effect.sizeEndMin, row.sizeEnd);
        EXPECT_EQ(effect.sizeEndMax, row.sizeEnd);
        EXPECT_EQ(effect.speedMin, row.speedMin);
        EXPECT_EQ(effect.speedMax, row.speedMax);
        EXPECT_EQ(effect.direction, row.direction);
        EXPECT_EQ(effect.directionSpread, row.directionSpread);
        EXPECT_EQ(effect.spinMax, 0.0f);
        EXPECT_EQ(effect.billboardMode, row.billboardMode);
        EXPECT_FALSE(effect.respawn);
        EXPECT_TRUE(effect.useQuads);
        EXPECT_TRUE(effect.spawnAtPosition);
    }
}

TEST_F(Effects, PresetsShowTheirOwnPictures) {
    const std::pair<const char*, std::function<void()>> presets[] = {
        {"textures/effects/particle3.tga", [&] { Make<ParticleEffect3>(); }},
        {"textures/effects/particle4.tga", [&] { Make<ParticleEffect4>(); }},
        {"textures/effects/particle6.tga", [&] { Make<ParticleEffect6>(); }},
        {"textures/effects/particle7.tga", [&] { Make<ParticleEffect7>(); }},
    };
    for (const auto& [path, make] : presets) {
        EXPECT_EQ(textures.GetTextureId(path), TextureHandler::unknownTexture);
        make();
        EXPECT_NE(textures.GetTextureId(path), TextureHandler::unknownTexture) << path;
    }
}

}  // namespace
}  // namespace tolvane

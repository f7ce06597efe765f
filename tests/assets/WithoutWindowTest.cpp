// Where no window could be opened the program goes on, and no GL function beyond the oldest was ever loaded.
// Where there is no sound card it goes on in silence.

#include <gmock/gmock.h>

#include <cstdlib>
#include <memory>

#include "assets/Gl.h"
#include "assets/MD2_Instance.h"
#include "assets/MD2_Store.h"
#include "assets/OffscreenTarget.h"
#include "assets/ParticleEffect4.h"
#include "assets/Shader.h"
#include "assets/SoundManager.h"
#include "assets/TextureFile.h"
#include "assets/TextureHandler.h"
#include "support/Md2File.h"
#include "support/TemporaryFile.h"
#include "support/TgaFile.h"
#include "support/WavFile.h"

namespace tolvane {
namespace {

constexpr Vertex eye{0, 0, 10};

class WithoutWindow : public ::testing::Test {
protected:
    TextureHandler textures;
    MD2_Store models{&textures};
    test::TemporaryFile model{test::SquareModel({"stand0", "stand1"}).Bytes(), ".md2"};
    test::TemporaryFile picture{test::PlainTga(2, 2, 1, 2, 3), ".tga"};
    test::TemporaryFile source{"void main() {}\n"};
};

TEST_F(WithoutWindow, ModelsAreLoadedAnimatedAndDrawnInNoMode) {
    ASSERT_EQ(glGenBuffersARB, nullptr);
    ::testing::internal::CaptureStdout();
    const std::unique_ptr<MD2_Instance> instance(
        models.CreateInstance(model.Path(), picture.Path(), picture.Path(), 2.0f));
    const std::string printed = ::testing::internal::GetCapturedStdout();
    ASSERT_NE(instance, nullptr);
    EXPECT_EQ(instance->maxX, 10.0f);
    EXPECT_THAT(printed, ::testing::Not(::testing::HasSubstr("textureBuffer init")));
    EXPECT_THAT(printed, ::testing::HasSubstr("+++ VBO ID: 0 :: Vertex and Normal Array in VBO: 0 bytes\n"));
    instance->SetAnimation({"stand", MD2_AnimationMode::Loop, 1.0f});
    for (const int renderMode : {0, 1, 2})
        instance->Animate(renderMode, 0.01f);
    EXPECT_FLOAT_EQ(instance->GetInterpolation(), 0.3f);
    instance->DrawVBO(false, nullptr, &eye, &eye);
    instance->DrawVertexArray(false, nullptr, &eye, &eye);
    instance->DrawImmediate(true, nullptr, &eye, &eye);
}

TEST_F(WithoutWindow, ShadersAreMadeButDoNothing) {
    ::testing::internal::CaptureStdout();
    Shader shader(source.Path(), source.Path());
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "*** Error: \n\n*** Error: \n\n*** Error: \n\n");
    EXPECT_EQ(shader.GetProgram(), 0u);
    Material material;
    material.Apply(&shader, &eye, &eye);
    Shader::Disable();
    shader.Free();
}

TEST_F(WithoutWindow, ParticlesFly) {
    ParticleEffect4 sparks(&textures);
    sparks.UpdateParticles(0.25f, &eye);
    EXPECT_EQ(sparks.GetActive().size(), 100u);
    sparks.DrawParticles(true);
}

TEST_F(WithoutWindow, PicturesAreReadAndNotUploaded) {
    const unsigned int id =
        textures.LoadTexture(picture.Path(), GL_LINEAR, GL_LINEAR, GL_REPEAT, GL_REPEAT, GL_MODULATE);
    EXPECT_EQ(textures.GetTextureId(picture.Path()), id);
    textures.LoadTexture3D(picture.Path(), GL_LINEAR, GL_LINEAR, GL_REPEAT, GL_REPEAT, GL_MODULATE);
    textures.DeleteAllTextures();
    EXPECT_EQ(TextureFile().Load(picture.Path().c_str(), nullptr, true), 0u);
}

TEST_F(WithoutWindow, TargetsAreNotSupported) {
    EXPECT_FALSE(OffscreenTarget::IsSupported());
    OffscreenTarget target;
    ::testing::internal::CaptureStdout();
    target.Init(256);
    target.Begin();
    target.End();
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(target.GetTexture(), 0u);
}

TEST(WithoutSoundCard, SoundsAreMissedAloudAndTheGameGoesOn) {
    setenv("SDL_AUDIODRIVER", "there is no such card", 1);
    const test::TemporaryFile tone(test::WavBytes(0.1, 440.0), ".wav");
    ::testing::internal::CaptureStdout();
    {
        SoundManager sounds;
        sounds.PlaySample(tone.Path(), 128, 0);
        sounds.FadeOutSample(tone.Path(), 50);
        sounds.PlayMusic(tone.Path());
        EXPECT_EQ(sounds.GetLastChannel(), -1);
    }
    EXPECT_EQ(::testing::internal::GetCapturedStdout(),
              "Warning: Audio could not be setup for 11025 Hz 16-bit stereo.\nReason: %s\n"
              "Could not open audio file: \n"
              "Unable to load WAV file: %s\n"
              "No more free channels to play the sample\n"
              "Path wrong!\nReason: %s\n"
              "Sound: sound sample cleaned from memory...\n"
              "Sound: removing all references from the soundlist...\n");
}

}  // namespace
}  // namespace tolvane

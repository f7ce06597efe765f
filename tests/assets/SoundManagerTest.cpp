#include "assets/SoundManager.h"

#include <SDL.h>
#include <gmock/gmock.h>

#include <cstdlib>
#include <optional>

#include "support/GlWindow.h"
#include "support/TemporaryFile.h"
#include "support/WavFile.h"

namespace tolvane {
namespace {

using test::PrintedBy;
using test::TemporaryFile;

constexpr int mixerChannels = 8;

// A manager on a sound card that is silent.
class Sounds : public ::testing::Test {
protected:
    Sounds() { setenv("SDL_AUDIODRIVER", "dummy", 1); }
    ~Sounds() override {
        PrintedBy([&] { manager.reset(); });
        Mix_CloseAudio();
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
    }

    void Open() {
        EXPECT_EQ(PrintedBy([&] { manager.emplace(); }), "");
    }
    static int PlayingChannels() { return Mix_Playing(-1); }

    std::optional<SoundManager> manager;
    TemporaryFile tone{test::WavBytes(20.0, 440.0), ".wav"};
    TemporaryFile otherTone{test::WavBytes(20.0, 880.0), ".wav"};
};

TEST_F(Sounds, ArePlayedOnAFreeChannel) {
    Open();
    EXPECT_EQ(PrintedBy([&] { manager->PlaySample(tone.Path(), 60, 0); }), "");
    const int channel = manager->GetLastChannel();
    ASSERT_GE(channel, 0);
    EXPECT_EQ(Mix_GetChunk(channel), manager->LoadSample(tone.Path()));
    EXPECT_EQ(Mix_Volume(channel, -1), 60);
    EXPECT_TRUE(Mix_Playing(channel));
    manager->PlaySample(otherTone.Path(), 128, -1);
    EXPECT_NE(manager->GetLastChannel(), channel);
    EXPECT_EQ(Mix_Volume(manager->GetLastChannel(), -1), 128);
    EXPECT_EQ(Mix_Volume(channel, -1), 60);
    EXPECT_EQ(PlayingChannels(), 2);
}

TEST_F(Sounds, OpenTheMixerInCdQuality) {
    Open();
    int rate = 0;
    Uint16 format = 0;
    int channels = 0;
    EXPECT_EQ(Mix_QuerySpec(&rate, &format, &channels), 1);
    EXPECT_EQ(rate, 44100);
    EXPECT_EQ(format, AUDIO_S16LSB);
    EXPECT_EQ(channels, 2);
    EXPECT_EQ(Mix_AllocateChannels(-1), mixerChannels);
}

TEST_F(Sounds, AreReadOnlyOnce) {
    Open();
    std::optional<TemporaryFile> shortLived(std::in_place, test::WavBytes(1.0, 440.0), ".wav");
    const std::string path = shortLived->Path();
    manager->PlaySample(path, 128, 0);
    Mix_Chunk* chunk = manager->LoadSample(path);
    shortLived.reset();
    EXPECT_EQ(PrintedBy([&] { manager->PlaySample(path, 128, 0); }), "");
    EXPECT_EQ(manager->LoadSample(path), chunk);
}

TEST_F(Sounds, ThatAreMissingAreMissedAloudButOpenedOnce) {
    Open();
    EXPECT_EQ(PrintedBy([&] {
                  for (int i = 0; i < 3; ++i)
                      manager->PlaySample("nowhere.wav", 128, 0);
              }),
              "Could not open audio file: \n"
              "Unable to load WAV file: %s\nNo more free channels to play the sample\n"
              "Unable to load WAV file: %s\nNo more free channels to play the sample\n"
              "Unable to load WAV file: %s\nNo more free channels to play the sample\n");
    EXPECT_EQ(manager->GetLastChannel(), -1);
    EXPECT_EQ(manager->LoadSample("nowhere.wav"), nullptr);
}

TEST_F(Sounds, ThatAreNoSoundsAreMissing) {
    Open();
    const TemporaryFile text("this is no sound", ".wav");
    EXPECT_EQ(PrintedBy([&] { EXPECT_EQ(manager->LoadSample(text.Path()), nullptr); }),
              "Could not open audio file: \n");
}

TEST_F(Sounds, AreDroppedWhenAllChannelsPlay) {
    Open();
    for (int i = 0; i < mixerChannels; ++i)
        manager->PlaySample(tone.Path(), 128, -1);
    EXPECT_EQ(PlayingChannels(), mixerChannels);
    EXPECT_EQ(PrintedBy([&] { manager->PlaySample(otherTone.Path(), 128, 0); }),
              "No more free channels to play the sample\n");
    EXPECT_EQ(manager->GetLastChannel(), -1);
}

TEST_F(Sounds, FadeOnEveryChannelThatPlaysThem) {
    Open();
    manager->PlaySample(tone.Path(), 128, -1);
    manager->PlaySample(otherTone.Path(), 128, -1);
    manager->PlaySample(tone.Path(), 128, -1);
    manager->FadeOutSample(tone.Path(), 100000);
    EXPECT_EQ(Mix_FadingChannel(0), MIX_FADING_OUT);
    EXPECT_EQ(Mix_FadingChannel(1), MIX_NO_FADING);
    EXPECT_EQ(Mix_FadingChannel(2), MIX_FADING_OUT);
}

TEST_F(Sounds, ThatDoNotPlayFadeWithoutASound) {
    Open();
    manager->PlaySample(tone.Path(), 128, -1);
    EXPECT_EQ(PrintedBy([&] { manager->FadeOutSample(otherTone.Path(), 50); }), "");
    EXPECT_EQ(PlayingChannels(), 1);
    EXPECT_EQ(Mix_FadingChannel(0), MIX_NO_FADING);
    EXPECT_EQ(PrintedBy([&] { manager->FadeOutSample("nowhere.wav", 50); }), "Could not open audio file: \n");
    EXPECT_EQ(PlayingChannels(), 1);
}

TEST_F(Sounds, IncludeMusicInTheBackground) {
    Open();
    EXPECT_EQ(PrintedBy([&] { manager->PlayMusic(tone.Path()); }), "");
    EXPECT_TRUE(Mix_PlayingMusic());
    EXPECT_EQ(Mix_VolumeMusic(-1), 45);
}

TEST_F(Sounds, GoOnWithoutTheirMusic) {
    Open();
    EXPECT_EQ(PrintedBy([&] { manager->PlayMusic("nowhere.ogg"); }), "Path wrong!\nReason: %s\n");
    EXPECT_FALSE(Mix_PlayingMusic());
    EXPECT_EQ(PrintedBy([&] { manager->PlaySample(tone.Path(), 128, 0); }), "");
}

TEST_F(Sounds, AreCleanedUpOneByOne) {
    Open();
    manager->LoadSample(tone.Path());
    manager->PlaySample(otherTone.Path(), 128, -1);
    PrintedBy([&] { manager->LoadSample("nowhere.wav"); });
    EXPECT_EQ(PrintedBy([&] { manager.reset(); }),
              "Sound: sound sample cleaned from memory...\n"
              "Sound: sound sample cleaned from memory...\n"
              "Sound: sound sample cleaned from memory...\n"
              "Sound: removing all references from the soundlist...\n");
    EXPECT_EQ(PlayingChannels(), 0);
    EXPECT_EQ(Mix_QuerySpec(nullptr, nullptr, nullptr), 1) << "only running music closes the mixer";
}

TEST_F(Sounds, CloseTheMixerWithTheirMusic) {
    Open();
    PrintedBy([&] { manager->PlayMusic(tone.Path()); });
    EXPECT_EQ(PrintedBy([&] { manager.reset(); }),
              "Sound: removing all references from the soundlist...\n"
              "Sound: music stopped & file cleaned from memory...\n");
    EXPECT_EQ(Mix_QuerySpec(nullptr, nullptr, nullptr), 0);
}

}  // namespace
}  // namespace tolvane

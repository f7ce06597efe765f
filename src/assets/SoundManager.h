#pragma once

#include <map>
#include <string>

#include <SDL_mixer.h>

namespace tolvane {

// Plays short samples on the mixer's channels, and one piece of music. Where there is no sound card it
// says so on the console and the game stays silent. Samples are kept by path for the whole run.
class SoundManager {
public:
    SoundManager();
    ~SoundManager();
    SoundManager(const SoundManager&) = delete;
    SoundManager& operator=(const SoundManager&) = delete;

    // The sample of a path, read the first time; null when it cannot be read, which is remembered. Owned by
    // the manager.
    Mix_Chunk* LoadSample(const std::string& path);
    // Plays once and loops times more on any free channel, for ever with -1. The volume is 0 to 128. A sample
    // that finds no free channel is dropped.
    void PlaySample(const std::string& path, int volume, int loops);
    // Fades every channel that plays this sample.
    void FadeOutSample(const std::string& path, int milliseconds);
    // Starts the music, for ever; once a run.
    void PlayMusic(const std::string& path);

    // Channel of the latest sample, -1 when that could not be played.
    int GetLastChannel() const { return lastChannel; }

private:
    Mix_Music* music = nullptr;
    int lastChannel = -1;
    int channelCount = 0;  // how many channels a fade looks at
    std::map<std::string, Mix_Chunk*> samples;
};

}  // namespace tolvane

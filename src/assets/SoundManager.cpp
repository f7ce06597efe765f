#include "assets/SoundManager.h"

#include <SDL.h>

#include <iostream>

namespace tolvane {

namespace {

constexpr int samplesPerSecond = 44100;
constexpr int stereo = 2;
constexpr int chunkSize = 512;
constexpr int musicVolume = 45;

}  // namespace

// Some of the messages keep their unfilled marks; they are printed as they stand.
SoundManager::SoundManager() {
    if (SDL_Init(SDL_INIT_AUDIO) != 0)
        std::cout << "Warning: unable to initialize audio: %s\n";
    if (Mix_OpenAudio(samplesPerSecond, AUDIO_S16LSB, stereo, chunkSize) < 0)
        std::cout << "Warning: Audio could not be setup for 11025 Hz 16-bit stereo.\nReason: %s\n";
    // A negative number only asks: the mixer plays on the eight channels that it starts with, and a fade that
    // looks at sixteen finds nothing on the upper ones.
    Mix_AllocateChannels(-1);
    channelCount = 16;
}

SoundManager::~SoundManager() {
    Mix_HaltChannel(-1);
    for (const auto& [path, chunk] : samples) {
        Mix_FreeChunk(chunk);
        std::cout << "Sound: sound sample cleaned from memory...\n";
    }
    std::cout << "Sound: removing all references from the soundlist...\n";
    samples.clear();
    if (!Mix_PlayingMusic())
        return;
    Mix_HaltMusic();
    Mix_FreeMusic(music);
    std::cout << "Sound: music stopped & file cleaned from memory...\n";
    music = nullptr;
    Mix_CloseAudio();
}

Mix_Chunk* SoundManager::LoadSample(const std::string& path) {
    const auto found = samples.find(path);
    if (found != samples.end())
        return found->second;
    Mix_Chunk* chunk = Mix_LoadWAV_RW(SDL_RWFromFile(path.c_str(), "rb"), 1);
    if (!chunk)
        std::cout << "Could not open audio file: \n";
    samples.emplace(path, chunk);
    return chunk;
}

void SoundManager::PlaySample(const std::string& path, int volume, int loops) {
    Mix_Chunk* chunk = LoadSample(path);
    if (!chunk)
        std::cout << "Unable to load WAV file: %s\n";
    lastChannel = Mix_PlayChannelTimed(-1, chunk, loops, -1);
    if (lastChannel == -1)
        std::cout << "No more free channels to play the sample\n";
    else
        Mix_Volume(lastChannel, volume);
}

void SoundManager::FadeOutSample(const std::string& path, int milliseconds) {
    const Mix_Chunk* chunk = LoadSample(path);
    for (int channel = 0; channel < channelCount; ++channel)
        if (Mix_GetChunk(channel) == chunk)
            Mix_FadeOutChannel(channel, milliseconds);
}

void SoundManager::PlayMusic(const std::string& path) {
    music = Mix_LoadMUS(path.c_str());
    if (!music) {
        std::cout << "Path wrong!\nReason: %s\n";
        return;
    }
    if (Mix_PlayMusic(music, -1) < 0)
        std::cout << "Error playing!\nReason: %s\n";
    Mix_VolumeMusic(musicVolume);
}

}  // namespace tolvane

#include "game/PlayedSounds.h"

#include <SDL.h>
#include <SDL_mixer.h>
#include <dlfcn.h>

#include <map>
#include <ostream>

#include "assets/SoundManager.h"

namespace {

struct MixerCall {
    Mix_Chunk* chunk;
    int channel;
    int loops;
    int volume;
};

std::vector<MixerCall> calls;
std::vector<std::string> openedFiles;
std::vector<std::string> openedMusic;

template <typename Function>
Function* Original(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

// The mixer's own entry points, with a note taken on the way: what is linked into the program comes before
// the library's.
extern "C" int Mix_PlayChannelTimed(int channel, Mix_Chunk* chunk, int loops, int ticks) {
    static auto* const play = Original<decltype(Mix_PlayChannelTimed)>("Mix_PlayChannelTimed");
    Mix_HaltChannel(-1);  // so that a free channel is never wanting
    const int used = play(channel, chunk, loops, ticks);
    calls.push_back({.chunk = chunk, .channel = used, .loops = loops, .volume = -1});
    return used;
}

extern "C" int Mix_Volume(int channel, int volume) {
    static auto* const set = Original<decltype(Mix_Volume)>("Mix_Volume");
    if (!calls.empty() && calls.back().channel == channel)
        calls.back().volume = volume;
    return set(channel, volume);
}

// Each test sets a game up and starts the music; it is read once.
extern "C" Mix_Music* Mix_LoadMUS(const char* path) {
    static auto* const load = Original<decltype(Mix_LoadMUS)>("Mix_LoadMUS");
    static std::map<std::string, Mix_Music*> loaded;
    Mix_Music*& music = loaded[path];
    if (music == nullptr) {
        openedMusic.emplace_back(path);
        music = load(path);
    }
    return music;
}

// How samples are read.
extern "C" SDL_RWops* SDL_RWFromFile(const char* path, const char* mode) {
    static auto* const open = Original<decltype(SDL_RWFromFile)>("SDL_RWFromFile");
    openedFiles.emplace_back(path);
    return open(path, mode);
}

namespace tolvane::test {

std::ostream& operator<<(std::ostream& out, const PlayedSound& sound) {
    return out << sound.path << " at " << sound.volume << ", " << sound.loops << " loops";
}

const std::vector<std::string>& OpenedFiles() {
    return openedFiles;
}

const std::vector<std::string>& OpenedMusic() {
    return openedMusic;
}

std::vector<PlayedSound> TakePlayedSounds(SoundManager& sounds, const std::vector<std::string>& knownPaths) {
    std::vector<PlayedSound> played;
    for (const MixerCall& call : calls) {
        PlayedSound sound{.path = "some other sample", .volume = call.volume, .loops = call.loops};
        for (const std::string& path : knownPaths)
            if (sounds.LoadSample(path) == call.chunk)
                sound.path = path;
        played.push_back(sound);
    }
    calls.clear();
    return played;
}

}  // namespace tolvane::test

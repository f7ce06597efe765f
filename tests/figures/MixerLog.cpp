#include "figures/MixerLog.h"

#include <SDL_mixer.h>
#include <dlfcn.h>

#include <array>
#include <cstddef>
#include <filesystem>
#include <ostream>

#include "assets/SoundManager.h"

namespace {

struct MixerCall {
    tolvane::test::Cue cue;
    Mix_Chunk* chunk;
};

// As many channels as the manager looks at when it fades; a sample keeps the channel that it once got.
std::array<Mix_Chunk*, 16> channels{};
std::size_t nextChannel = 0;
std::vector<MixerCall> calls;
int loadCount = 0;

std::size_t ChannelOf(Mix_Chunk* chunk) {
    for (std::size_t i = 0; i < channels.size(); ++i)
        if (channels[i] == chunk)
            return i;
    const std::size_t taken = nextChannel;
    channels[taken] = chunk;
    nextChannel = (nextChannel + 1) % channels.size();
    return taken;
}

}  // namespace

// These stand before the mixer library's own. Only loading goes on to the library.

extern "C" Mix_Chunk* Mix_LoadWAV_RW(SDL_RWops* source, int freeSource) {
    static auto* const load = reinterpret_cast<decltype(Mix_LoadWAV_RW)*>(dlsym(RTLD_NEXT, "Mix_LoadWAV_RW"));
    ++loadCount;
    return load(source, freeSource);
}

extern "C" int Mix_PlayChannelTimed(int, Mix_Chunk* chunk, int loops, int) {
    calls.push_back({tolvane::test::Played("", 0, loops), chunk});
    return static_cast<int>(ChannelOf(chunk));
}

extern "C" int Mix_Volume(int, int volume) {
    calls.back().cue.volume = volume;
    return volume;
}

extern "C" Mix_Chunk* Mix_GetChunk(int channel) {
    return channels[static_cast<std::size_t>(channel)];
}

extern "C" int Mix_FadeOutChannel(int channel, int milliseconds) {
    calls.push_back({tolvane::test::Faded("", milliseconds), channels[static_cast<std::size_t>(channel)]});
    return 1;
}

namespace tolvane::test {

std::ostream& operator<<(std::ostream& out, const Cue& cue) {
    if (cue.kind == Cue::Kind::play)
        return out << "play " << cue.path << " at " << cue.volume << ", " << cue.number << " loops";
    return out << "fade " << cue.path << " in " << cue.number << " ms";
}

Cue Played(const std::string& path, int volume, int loops) {
    return {Cue::Kind::play, path, volume, loops};
}

Cue Faded(const std::string& path, int milliseconds) {
    return {Cue::Kind::fade, path, 0, milliseconds};
}

std::vector<Cue> TakeCues(SoundManager& sounds) {
    std::vector<Cue> cues;
    for (const MixerCall& call : calls) {
        cues.push_back(call.cue);
        for (const auto& file : std::filesystem::directory_iterator("media")) {
            const std::string path = "media/" + file.path().filename().string();
            if (sounds.LoadSample(path) == call.chunk)
                cues.back().path = path;
        }
    }
    calls.clear();
    return cues;
}

int TakeLoadCount() {
    const int count = loadCount;
    loadCount = 0;
    return count;
}

void ClearMixerLog() {
    calls.clear();
    channels.fill(nullptr);
    loadCount = 0;
}

}  // namespace tolvane::test

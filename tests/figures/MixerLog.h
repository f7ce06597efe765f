#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace tolvane {
class SoundManager;
}

namespace tolvane::test {

// One call that reached the mixer: a sample that was started, or one that was faded out.
struct Cue {
    enum class Kind { play, fade };

    Kind kind;
    std::string path;
    int volume = 0;  // of a start
    int number = 0;  // loops of a start, milliseconds of a fade

    bool operator==(const Cue&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Cue& cue);

Cue Played(const std::string& path, int volume = 128, int loops = 0);
Cue Faded(const std::string& path, int milliseconds);

// Everything that the mixer was asked for since the last call, in order. The program's own SoundManager runs;
// only behind it a channel is always free and nothing sounds, so that scenes may play faster than the clock.
// A sample counts under the path by which the manager holds it.
std::vector<Cue> TakeCues(SoundManager& sounds);

// How many sample files were read since the last call.
int TakeLoadCount();

// As if nothing had been asked for yet.
void ClearMixerLog();

}  // namespace tolvane::test

#pragma once

#include <string>
#include <vector>

namespace tolvane {
class SoundManager;
}

namespace tolvane::test {

// One sample that went to the mixer. The volume is set right behind the start, on the same channel.
struct PlayedSound {
    std::string path;
    int volume = -1;
    int loops = 0;

    bool operator==(const PlayedSound&) const = default;
};

std::ostream& operator<<(std::ostream& out, const PlayedSound& sound);

// Everything that the mixer was asked to play since the last call, in order. Paths are found among the
// samples of the sound manager; every one that a test wants to recognise has to exist as a file.
std::vector<PlayedSound> TakePlayedSounds(SoundManager& sounds, const std::vector<std::string>& knownPaths);

// The files that were opened through SDL since the start of the program, in order, and those of the music,
// each of which is opened once.
const std::vector<std::string>& OpenedFiles();
const std::vector<std::string>& OpenedMusic();

}  // namespace tolvane::test

#pragma once

#include <functional>
#include <string>
#include <vector>

#include "figures/MixerLog.h"
#include "figures/Troupe.h"

namespace tolvane::test {

// How the time of a scene passes.
struct Pace {
    float frameTime;          // seconds
    int emptyFrames = 0;      // frames without time before each one with time
    bool likeTheGame = true;  // models move in one frame of five, by four frames' time; else in every frame

    friend std::ostream& operator<<(std::ostream& out, const Pace& pace);
};

// The paces at which every scene has to come to its end.
const std::vector<Pace>& AllPaces();

// What a scene did, as far as it can be told from outside.
struct Outcome {
    bool over = false;
    int endings = 0;  // how often the end was reported, two seconds more included
    float seconds = 0.0f;
    int secondHits = 0;
    std::vector<std::string> cues;  // file names; "~" before what was faded
};

// Plays the script that a figure holds, frame by frame as the game does it: scripts of busy figures first,
// then models. Stops two seconds after the end, or after five minutes.
class Scene {
public:
    // The other figure may be null. Both belong to the troupe.
    Scene(Troupe& withTroupe, ChessFigure3D& holder, ChessFigure3D* other, const Pace& atPace);

    Outcome Play();
    // One frame, empty ones before it included; true when the end is reported.
    bool PlayFrame();
    // Frames until something is so; false when the scene ends, or five minutes pass, before.
    bool PlayUntil(const std::function<bool()>& condition);

    float Seconds() const { return seconds; }
    // Called after each frame.
    std::function<void()> watch;

private:
    bool Frame(float dt);
    void AnimateModels(float dt);
    void CountSecondHits();

    Troupe& troupe;
    ChessFigure3D& figure;
    ChessFigure3D* victim;
    Pace pace;
    float seconds = 0.0f;
    int frameCount = 0;
    float modelTime = 0.0f;
    int secondHits = 0;
};

// At rest on a field, as a scene has to leave it: exactly there, exactly turned, every flag clear, not busy.
void ExpectAtRest(ChessFigure3D& figure, int column, int row, float heading);

// Faded, unlit, out of the scene pass, still on its field.
void ExpectGone(ChessFigure3D& figure, int column, int row);

// The cues since the last call as an Outcome tells them.
std::vector<std::string> TakeCueNames(Troupe& troupe);

}  // namespace tolvane::test

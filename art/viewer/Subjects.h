#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tolvane::viewer {

// A clip of a model and how many frames it has.
struct Clip {
    std::string name;
    int frames;
};

// Something to make a sheet of. What the functions work on lives to the end of the process.
struct Subject {
    std::string name;
    float size;    // world units, what a tile has to hold
    float centre;  // height that the camera looks at
    std::vector<Clip> clips;
    std::function<void(const std::string& clip)> play;  // from its first frame
    std::function<void(float dt)> step;                 // seconds
    std::function<void()> draw;                         // at the current matrix, in the game's own light
};

// What the game draws with a model and is wanted by its name: a figure's is that of its model and its paint,
// "pawn-white". Only what is wanted is loaded. Needs a GL context.
std::vector<Subject> MakeSubjects(const std::function<bool(const std::string& name)>& wanted);

}  // namespace tolvane::viewer

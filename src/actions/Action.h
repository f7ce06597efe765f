#pragma once

#include "assets/Vertex.h"

namespace tolvane {

// A scene on the board: the script of one move or one fight. It refers to figures and owns nothing, so
// every script is trivially destructible; the figure that holds it releases its memory (TrivialRelease).
class Action {
public:
    // Advances the script by one frame of frameTime seconds (0 is legal, nothing is clamped). The eye is
    // passed on to the effects. True when the scene is over.
    virtual bool Step(float frameTime, const Vertex* eyePosition) = 0;

protected:
    Action() = default;
    ~Action() = default;

    int state = 0;  // the phase of the script; only ever goes up
};

}  // namespace tolvane

#pragma once

#include "frame/Engine3D.h"
#include "game/Chess3D.h"

namespace tolvane {

// The game and the frame around it, side by side.
class ChessApplication {
public:
    // Asks the console question, opens the window and loads everything.
    ChessApplication();
    // Plays until the user quits.
    void Run();

private:
    Chess3D game;
    Engine3D engine;
};

}  // namespace tolvane

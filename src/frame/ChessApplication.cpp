#include "frame/ChessApplication.h"

namespace tolvane {

namespace {

constexpr int windowWidth = 1024;
constexpr int windowHeight = 768;
constexpr int windowDepth = 32;

}  // namespace

ChessApplication::ChessApplication() : engine(windowWidth, windowHeight, windowDepth) {
    game.Initialize(&engine);
    engine.SetGame(&game);
}

void ChessApplication::Run() {
    engine.MainLoop();
}

}  // namespace tolvane

#pragma once

#include <string>

namespace tolvane {

// The files that make one kind of figure of one colour, and its size on the board.
struct FigureAsset {
    std::string modelPath;
    std::string diffusePath;
    std::string normalPath;
    float scale = 1.0f;  // world units for each unit of the model
};

}  // namespace tolvane

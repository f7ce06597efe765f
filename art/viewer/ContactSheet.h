#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "viewer/Subjects.h"

namespace tolvane::viewer {

// A picture in the making: a grid of tiles, filled from what has just been drawn in the window.
class ContactSheet {
public:
    // The size of the grid in tiles, and of a tile in pixels.
    ContactSheet(int columns, int rows, int tileSize);

    // Copies the lower left corner of the back buffer into a tile; row 0 is the top one.
    void TakeTile(int column, int row);
    // Writes the picture as a PNG; throws std::runtime_error where that fails.
    void Save(const std::string& path) const;

private:
    int columns;
    int rows;
    int tileSize;
    std::vector<std::uint8_t> rgb;  // bottom row first
};

// Draws a row of tiles for each clip of a subject: front, right, back, the view of the starting camera at its
// own size and enlarged, and phases of the clip.
ContactSheet DrawSheet(Subject& subject);

}  // namespace tolvane::viewer

#pragma once

#include <memory>
#include <vector>

#include "rules/Field.h"

namespace tolvane {

// A grid of fields of any size.
class Board {
public:
    // All fields start as default ones: empty, and at (0, 0) until SetField says better.
    Board(int columns, int rows);

    // Throws InvalidParameterException off the board.
    Field& FieldAt(int x, int y);

    // Copies the given field to the place that it names. Throws InvalidParameterException off the board.
    void SetField(const Field& field);

private:
    std::unique_ptr<std::vector<std::vector<Field>>> grid;  // grid[x][y]
};

}  // namespace tolvane

#pragma once

namespace tolvane {

// A place on the board: x is the column, y the row, 0 to 7 on the board. Places off the board can be
// written down too; only those who are asked about one check it.
class Coordinate {
public:
    Coordinate() = default;
    Coordinate(int column, int row) : x(column), y(row) {}

    int GetX() const { return x; }
    int GetY() const { return y; }

    // -1, 0 or 1, as this place comes before, with or after the other: by column, then by row.
    int Compare(const Coordinate& other) const;

private:
    int x = 0;
    int y = 0;
};

}  // namespace tolvane

#pragma once

namespace tolvane {

// Whatever can stand on a field: a place, and whether it is still in play.
class Element {
public:
    Element(int column, int row, bool isAlive) : x(column), y(row), alive(isAlive) {}

    int GetX() const { return x; }
    int GetY() const { return y; }
    // Writes the place and nothing else: no field and no moved flag learns of it.
    void SetPosition(int column, int row) {
        x = column;
        y = row;
    }

    bool IsAlive() const { return alive; }
    void SetAlive(bool isAlive) { alive = isAlive; }

private:
    int x;
    int y;
    bool alive;  // false from capture on, true again when the capture is taken back
};

}  // namespace tolvane

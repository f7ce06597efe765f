#pragma once

#include "rules/Element.h"

namespace tolvane {

// One square of a board and what stands on it.
class Field {
public:
    Field() = default;
    Field(int column, int row) : x(column), y(row) {}
    Field(int column, int row, Element* occupant) : element(occupant), x(column), y(row) {}

    // Null when the field is empty.
    virtual Element* GetElement() const { return element; }
    virtual Field& SetElement(Element* occupant) {
        element = occupant;
        return *this;
    }

    int GetX() const { return x; }
    int GetY() const { return y; }

private:
    Element* element = nullptr;  // not owned
    int x = 0;
    int y = 0;
};

}  // namespace tolvane

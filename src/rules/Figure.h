#pragma once

#include "rules/Element.h"

namespace tolvane {

// An element that moves.
class Figure : public Element {
public:
    Figure(int column, int row, bool isAlive) : Element(column, row, isAlive) {}

    // Goes to a place in play. Kings and rooks remember it.
    virtual void MoveTo(int column, int row) { SetPosition(column, row); }

    void Kill() { SetAlive(false); }
};

}  // namespace tolvane

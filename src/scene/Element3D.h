#pragma once

#include "scene/DrawAble.h"

namespace tolvane {

// A drawable with a place on the board: what a click can answer.
class Element3D : public DrawAble {
public:
    Element3D() = default;
    Element3D(unsigned int atColumn, unsigned int atRow) : column(atColumn), row(atRow) {}

    unsigned int GetColumn() const { return column; }
    unsigned int GetRow() const { return row; }

protected:
    ~Element3D() = default;

    unsigned int column = 0;
    unsigned int row = 0;
};

}  // namespace tolvane

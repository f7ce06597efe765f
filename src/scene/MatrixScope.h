#pragma once

#include "assets/Gl.h"

namespace tolvane {

// Keeps the current matrix as it was, to the end of a block.
class MatrixScope {
public:
    MatrixScope() { glPushMatrix(); }
    ~MatrixScope() { glPopMatrix(); }
    MatrixScope(const MatrixScope&) = delete;
    MatrixScope& operator=(const MatrixScope&) = delete;
};

}  // namespace tolvane

#pragma once

#include "assets/Gl.h"

namespace tolvane {

// While it lives, GL takes pictures without padding between their rows, as picture files hold them.
class TightRows {
public:
    TightRows() {
        glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT);
        glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    }
    ~TightRows() { glPopClientAttrib(); }
    TightRows(const TightRows&) = delete;
    TightRows& operator=(const TightRows&) = delete;
};

}  // namespace tolvane

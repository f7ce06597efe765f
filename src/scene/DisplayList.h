#pragma once

#include "assets/Gl.h"

namespace tolvane {

// The name of a new display list that holds what draw calls; nothing of it is drawn now. Lists live as
// long as the GL context: the scene is made once and its objects may outlive the context.
template <typename Drawing>
unsigned int CompileDisplayList(Drawing&& draw) {
    struct Compilation {
        explicit Compilation(unsigned int list) { glNewList(list, GL_COMPILE); }
        ~Compilation() { glEndList(); }
        Compilation(const Compilation&) = delete;
        Compilation& operator=(const Compilation&) = delete;
    };

    const unsigned int list = glGenLists(1);
    const Compilation compilation(list);
    draw();
    return list;
}

}  // namespace tolvane

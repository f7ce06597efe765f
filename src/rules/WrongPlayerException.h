#pragma once

#include "assets/Exception.h"

namespace tolvane {

// A figure of the player whose turn it is not. Whose turn it is is kept outside the rules, so they never
// throw it.
class WrongPlayerException : public Exception {
public:
    using Exception::Exception;
};

}  // namespace tolvane

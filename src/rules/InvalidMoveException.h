#pragma once

#include "assets/Exception.h"

namespace tolvane {

// A move that the rules reject.
class InvalidMoveException : public Exception {
public:
    using Exception::Exception;
};

}  // namespace tolvane

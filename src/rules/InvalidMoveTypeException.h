#pragma once

#include "assets/Exception.h"

namespace tolvane {

// A target that does not lie on the line that was asked for; for a rook or queen another line may still do.
class InvalidMoveTypeException : public Exception {
public:
    using Exception::Exception;
};

}  // namespace tolvane

#pragma once

#include "assets/Exception.h"

namespace tolvane {

// An argument outside its range: a coordinate off the board, an index outside a matrix.
class InvalidParameterException : public Exception {
public:
    using Exception::Exception;
};

}  // namespace tolvane

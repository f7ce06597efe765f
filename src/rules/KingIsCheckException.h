#pragma once

#include "assets/Exception.h"

namespace tolvane {

// A king's step onto an attacked field.
class KingIsCheckException : public Exception {
public:
    using Exception::Exception;
};

}  // namespace tolvane

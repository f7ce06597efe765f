#include "assets/Exception.h"

#include <iostream>

namespace tolvane {

void Exception::Print() const {
    std::cerr << "An exception has occured: Err.Nr.: " << errorNumber << "\n Error message: " << message
              << std::endl;
}

}  // namespace tolvane

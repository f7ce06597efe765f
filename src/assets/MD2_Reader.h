#pragma once

#include <memory>
#include <string>

#include "assets/MD2_Model.h"

namespace tolvane {

// Reads MD2 files; keeps nothing between two of them.
class MD2_Reader {
public:
    // Throws std::runtime_error "Error opening file!" (standard error then names the path), "Bad file
    // ident" or "Bad file version". A file that is shorter than it says is not reported: what it does not
    // hold reads as zero, and counts cost no more memory than the file has bytes for.
    std::unique_ptr<MD2_Model> Load(const std::string& path) const;
};

}  // namespace tolvane

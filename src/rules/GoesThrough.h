#pragma once

namespace tolvane {

// Whether a rule, any callable, returns instead of throwing.
template <typename Rule>
bool GoesThrough(const Rule& rule) {
    try {
        rule();
        return true;
    } catch (...) {
        return false;
    }
}

}  // namespace tolvane

#pragma once

#include <new>

namespace tolvane {

// Gives back the memory of an object that is known only through a base without a virtual destructor and
// whose own destructor does nothing. Such objects are made with new; whoever makes one asserts that its
// type is trivially destructible.
struct TrivialRelease {
    template <typename Base>
    void operator()(Base* object) const {
        ::operator delete(dynamic_cast<void*>(object));
    }
};

}  // namespace tolvane

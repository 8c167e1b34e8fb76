#pragma once

#include <cstdlib>
#include <memory>

namespace velmora {

/// xcb hands out replies, events and errors that the caller frees.
struct Freed {
    void operator()(void* pointer) const { std::free(pointer); }
};
template<typename T>
using XcbOwned = std::unique_ptr<T, Freed>;

} // namespace velmora

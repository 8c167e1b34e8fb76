#pragma once

#include <memory>

namespace velmora {

/// Ends a Wayland object with the request or function made for its kind.
template<typename T>
struct WaylandDeleter {
    void (*end)(T*) = nullptr;
    void operator()(T* object) const { end(object); }
};
template<typename T>
using WaylandOwned = std::unique_ptr<T, WaylandDeleter<T>>;

/// `object`, ended by `end`; may be null.
template<typename T>
WaylandOwned<T> owned(T* object, void (*end)(T*)) {
    return WaylandOwned<T>(object, {end});
}

} // namespace velmora

#pragma once

#include <functional>

namespace velmora {

/// The desktop's preference for light or dark windows.
class Appearance {
public:
    virtual ~Appearance() = default;

    /// Calls `handler(prefersDark)` now, as far as it is known, and again whenever it changes. On
    /// the main thread; at most one handler.
    virtual void observe(std::function<void(bool prefersDark)> handler) = 0;
};

} // namespace velmora

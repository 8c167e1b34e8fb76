#pragma once

#include <functional>

namespace velmora {

/// The session's place for status items: a tray.
class TrayHost {
public:
    virtual ~TrayHost() = default;

    /// Looks for a tray and runs `task` once on the main thread, now or later, when there is one.
    /// Call once; not before something else needs the time more.
    virtual void whenThere(std::function<void()> task) = 0;
};

} // namespace velmora

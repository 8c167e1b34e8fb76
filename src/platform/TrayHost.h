#pragma once

#include <functional>

namespace velmora {

/// Whether the session has a place for status items: a tray.
class TrayHost {
public:
    virtual ~TrayHost() = default;

    /// Starts to look for a tray, and calls `handler(isThere)` on the main thread, now or later:
    /// true each time one has arrived, false when the last one has gone. Call once; not needed
    /// before something is to be shown there, since looking costs time.
    virtual void observe(std::function<void(bool isThere)> handler) = 0;
};

} // namespace velmora

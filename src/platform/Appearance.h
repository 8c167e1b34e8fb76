#pragma once

#include <functional>
#include <optional>

namespace velmora {

/// The desktop's preference for light or dark windows.
class Appearance {
public:
    virtual ~Appearance() = default;

    /// Whether dark windows are preferred; nothing without a preference.
    using Handler = std::function<void(std::optional<bool> prefersDark)>;

    /// Calls `handler` now, as far as the preference is known, and again whenever it changes. On
    /// the main thread; at most one handler.
    virtual void observe(Handler handler) = 0;
};

} // namespace velmora

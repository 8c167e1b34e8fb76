#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

namespace velmora {

/// What a window that covers part of the panel is to it.
enum class Cover {
    intruder, ///< belongs below the panel
    menu,     ///< a menu, a tool tip or an icon being dragged: belongs above it
    locker,   ///< hides the whole screen, and what lies above it is its own business
};

/// A top-level window that is seen above the panel and overlaps it.
struct WindowAbove {
    std::uint32_t id = 0;
    Cover cover = Cover::intruder;
};

/// One step: `window` goes directly above `sibling`.
struct Restacking {
    std::uint32_t window = 0;
    std::uint32_t sibling = 0;
    bool operator==(const Restacking&) const = default;
};

/// The steps, first to last, that bring the panel above its intruders and keep it below its menus
/// and, at every moment, below a locker. None when nothing intrudes. `above` goes upwards.
std::vector<Restacking> restackings(std::uint32_t panel, const std::vector<WindowAbove>& above);

/// Keeps two windows that both want to be on top from raising themselves in turn for ever: raises
/// in quick succession wait longer and longer, and after a calm the next one is prompt again. Looks
/// at the stack keep a short distance. Pure; times come from any one monotonic clock.
class RaiseLimiter {
public:
    using Time = std::chrono::milliseconds;

    /// How long from `now` the next look, and the raise that it may lead to, must wait.
    Time delay(Time now) const;

    /// Notes a look made at `now`.
    void looked(Time now) { lastLook_ = now; }

    /// Notes a raise made at `now`.
    void raised(Time now);

private:
    std::optional<Time> lastLook_;
    std::optional<Time> lastRaise_;
    Time interval_{};
};

} // namespace velmora

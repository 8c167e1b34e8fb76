#pragma once

#include <cstdint>
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

} // namespace velmora

#pragma once

#include <QRect>
#include <cstdint>
#include <vector>

namespace velmora {

/// A top-level window stacked above the panel. Pixels of the root window.
struct WindowAbove {
    std::uint32_t id = 0;
    QRect frame;
    bool viewable = true;
    bool overrideRedirect = false;
    bool ours = false;      ///< made by this process
    bool transient = false; ///< says it is a menu, a tooltip or an icon being dragged
};

/// The windows to raise, first to last, so that nothing covers the panel but what may: our own and
/// others' menus and tooltips, and windows over the whole height of the panel's screen that no
/// window manager placed (screen lockers, region selectors). Empty when nothing else covers it.
/// `above` goes from the panel upwards.
std::vector<std::uint32_t> windowsToRaise(
    std::uint32_t panel, const QRect& panelFrame, int screenHeight,
    const std::vector<WindowAbove>& above);

} // namespace velmora

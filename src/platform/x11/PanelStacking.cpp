#include "platform/x11/PanelStacking.h"

#include <algorithm>

namespace velmora {
namespace {

bool mayCoverPanel(const WindowAbove& window, const QRect& panelFrame, const QRect& screen) {
    if (!window.overrideRedirect)
        return false;
    const bool overWholeScreen =
        window.frame.contains(panelFrame) && window.frame.height() >= screen.height();
    return window.ours || window.transient || overWholeScreen;
}

} // namespace

std::vector<std::uint32_t> windowsToRaise(
    std::uint32_t panel, const QRect& panelFrame, const QRect& screen,
    const std::vector<WindowAbove>& above) {
    const auto intrudes = [&](const WindowAbove& window) {
        return window.viewable && window.frame.intersects(panelFrame) &&
               !mayCoverPanel(window, panelFrame, screen);
    };
    if (std::none_of(above.begin(), above.end(), intrudes))
        return {};
    std::vector<std::uint32_t> raises{panel};
    for (const WindowAbove& window : above) {
        if (window.viewable && mayCoverPanel(window, panelFrame, screen))
            raises.push_back(window.id);
    }
    return raises;
}

} // namespace velmora

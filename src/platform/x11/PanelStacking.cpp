#include "platform/x11/PanelStacking.h"

#include <algorithm>

namespace velmora {
namespace {

bool mayCoverPanel(const WindowAbove& window, const QRect& panelFrame, int screenHeight) {
    if (!window.overrideRedirect)
        return false;
    const bool overWholeScreen =
        window.frame.contains(panelFrame) && window.frame.height() >= screenHeight;
    return window.ours || window.transient || overWholeScreen;
}

} // namespace

std::vector<std::uint32_t> windowsToRaise(
    std::uint32_t panel, const QRect& panelFrame, int screenHeight,
    const std::vector<WindowAbove>& above) {
    const auto intrudes = [&](const WindowAbove& window) {
        return window.viewable && window.frame.intersects(panelFrame) &&
               !mayCoverPanel(window, panelFrame, screenHeight);
    };
    if (std::none_of(above.begin(), above.end(), intrudes))
        return {};
    std::vector<std::uint32_t> raises{panel};
    for (const WindowAbove& window : above) {
        if (window.viewable && mayCoverPanel(window, panelFrame, screenHeight))
            raises.push_back(window.id);
    }
    return raises;
}

} // namespace velmora

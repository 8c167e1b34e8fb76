#include "platform/x11/panel/PanelStacking.h"

#include <algorithm>
#include <span>

namespace velmora {

std::vector<Restacking> restackings(std::uint32_t panel, const std::vector<WindowAbove>& above) {
    const auto isLocker = [](const WindowAbove& window) { return window.cover == Cover::locker; };
    const auto locker = std::find_if(above.begin(), above.end(), isLocker);
    std::span below(above.begin(), locker);
    while (!below.empty() && below.back().cover != Cover::intruder)
        below = below.first(below.size() - 1);
    if (below.empty())
        return {};
    std::vector<Restacking> steps{{panel, below.back().id}};
    for (const WindowAbove& window : below) {
        if (window.cover == Cover::menu)
            steps.push_back({window.id, steps.back().window});
    }
    return steps;
}

} // namespace velmora

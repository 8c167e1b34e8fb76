#include "platform/x11/panel/PanelStacking.h"

#include <algorithm>
#include <span>

namespace velmora {
namespace {

using namespace std::chrono_literals;

constexpr RaiseLimiter::Time kLookInterval = 50ms;
constexpr RaiseLimiter::Time kFirstInterval = 50ms;
constexpr RaiseLimiter::Time kLongestInterval = 10s;
constexpr RaiseLimiter::Time kShortestCalm = 1s;

} // namespace

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

RaiseLimiter::Time RaiseLimiter::delay(Time now) const {
    Time next = now;
    if (lastLook_)
        next = std::max(next, *lastLook_ + kLookInterval);
    if (lastRaise_)
        next = std::max(next, *lastRaise_ + interval_);
    return next - now;
}

void RaiseLimiter::raised(Time now) {
    const bool calm = !lastRaise_ || now - *lastRaise_ > std::max(2 * interval_, kShortestCalm);
    interval_ = calm ? kFirstInterval : std::min(2 * interval_, kLongestInterval);
    lastRaise_ = now;
}

} // namespace velmora

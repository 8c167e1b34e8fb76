#include "platform/x11/panel/RaiseLimiter.h"

#include <algorithm>

namespace velmora {
namespace {

using namespace std::chrono_literals;

constexpr RaiseLimiter::Time kLookInterval = 50ms;
constexpr RaiseLimiter::Time kFirstInterval = 50ms;
constexpr RaiseLimiter::Time kLongestInterval = 10s;
constexpr RaiseLimiter::Time kShortestCalm = 1s;

} // namespace

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

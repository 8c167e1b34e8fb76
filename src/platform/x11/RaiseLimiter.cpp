#include "platform/x11/RaiseLimiter.h"

#include <algorithm>

namespace velmora {
namespace {

using namespace std::chrono_literals;

constexpr RaiseLimiter::Time kFirstInterval = 50ms;
constexpr RaiseLimiter::Time kLongestInterval = 10s;
constexpr RaiseLimiter::Time kShortestCalm = 1s;

} // namespace

RaiseLimiter::Time RaiseLimiter::delay(Time now) const {
    return last_ ? std::max(*last_ + interval_ - now, Time(0)) : Time(0);
}

void RaiseLimiter::raised(Time now) {
    const bool calm = !last_ || now - *last_ > std::max(2 * interval_, kShortestCalm);
    interval_ = calm ? kFirstInterval : std::min(2 * interval_, kLongestInterval);
    last_ = now;
}

} // namespace velmora

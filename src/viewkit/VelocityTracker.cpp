#include "viewkit/VelocityTracker.h"

#include <algorithm>

namespace velmora {
namespace {

/// The share of a tick in a way that took `duration`; in less than a tick it is all of it.
QPointF inOneTick(QPointF way, quint32 duration) {
    return way * VelocityTracker::tick / std::max(duration, VelocityTracker::tick);
}

} // namespace

void VelocityTracker::press(QPointF position, quint64 time) {
    samples_.assign(1, {position, time});
}

void VelocityTracker::move(QPointF position, quint64 time) {
    if (!samples_.empty() && samples_.back().position == position)
        return;
    samples_.push_back({position, time});
    while (samples_.size() > 1 && samples_[1].age(time) >= window)
        samples_.pop_front();
}

QPointF VelocityTracker::movement(quint64 now) const {
    if (samples_.size() < 2 || samples_.back().age(now) >= restTime)
        return {};
    const Sample& last = samples_.back();
    const auto next = std::ranges::find_if(
        samples_, [now](const Sample& sample) { return sample.age(now) < window; });
    if (next == samples_.begin())
        return inOneTick(last.position - next->position, next->age(now) - last.age(now));
    // Where it was as the window began.
    const Sample& before = *std::prev(next);
    const double passed = double(before.age(now) - window) / (before.age(now) - next->age(now));
    const QPointF start = before.position + (next->position - before.position) * passed;
    return inOneTick(last.position - start, window - last.age(now));
}

} // namespace velmora

#include "viewkit/DragThrottle.h"

#include <utility>

namespace velmora {

std::optional<QPointF> DragThrottle::move(QPointF position, quint64 now) {
    pending_ = position;
    return remaining(now) == 0 ? takePending(now) : std::nullopt;
}

std::optional<quint64> DragThrottle::remaining(quint64 now) const {
    if (!pending_)
        return std::nullopt;
    // A clock that went backwards delivers at once rather than never.
    if (!lastDelivery_ || now < *lastDelivery_ || now - *lastDelivery_ >= interval)
        return 0;
    return interval - (now - *lastDelivery_);
}

std::optional<QPointF> DragThrottle::takePending(quint64 now) {
    if (pending_)
        lastDelivery_ = now;
    return std::exchange(pending_, std::nullopt);
}

void DragThrottle::reset() {
    pending_.reset();
    lastDelivery_.reset();
}

} // namespace velmora

#pragma once

#include <QPointF>
#include <optional>

namespace velmora {

/// Thins out drag positions to one in `interval` milliseconds, as a display-synchronised platform
/// reports them. No clock inside: every call brings its time, in milliseconds.
class DragThrottle {
public:
    static constexpr quint64 interval = 16;

    /// Takes a position; gives it back when it is to be delivered now, else keeps it as pending in
    /// place of an earlier one.
    std::optional<QPointF> move(QPointF position, quint64 now);

    /// Milliseconds from `now` until the pending position is due; absent when none is pending.
    std::optional<quint64> remaining(quint64 now) const;

    /// Takes the pending position for delivery at `now`; absent when none is pending.
    std::optional<QPointF> takePending(quint64 now);

    /// A press or release: the pending position is never delivered, the next one at once.
    void reset();

private:
    std::optional<QPointF> pending_;
    std::optional<quint64> lastDelivery_;
};

} // namespace velmora

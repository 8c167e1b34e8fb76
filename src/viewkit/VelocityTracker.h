#pragma once

#include <QPointF>
#include <deque>

namespace velmora {

/// Tells how fast a dragged pointer is when its button is let go. Mice report 60 to 1,000 times a
/// second, in whole pixels and whole milliseconds, and a release follows the last report by any
/// part of that: two reports alone say little, so the speed is that of the last 50 ms. No clock
/// inside: every call brings its time in milliseconds, which may wrap around at 32 bits.
class VelocityTracker {
public:
    /// Milliseconds over which the speed is taken.
    static constexpr quint32 window = 50;
    /// Milliseconds without movement after which the pointer rests: it left out two reports of the
    /// slowest mouse.
    static constexpr quint32 restTime = 32;
    /// Milliseconds of the movement that is told.
    static constexpr quint32 tick = 16;

    /// The button went down; what was before is forgotten.
    void press(QPointF position, quint64 time);
    void move(QPointF position, quint64 time);
    /// How far the pointer moves in one tick at its speed of now; nothing while it rests.
    QPointF movement(quint64 now) const;

private:
    struct Sample {
        QPointF position;
        quint64 time;
        quint32 age(quint64 now) const { return static_cast<quint32>(now - time); }
    };
    /// Places in order of time: the press, or the last one from before the window, and since then.
    std::deque<Sample> samples_;
};

} // namespace velmora

#pragma once

#include <QRect>

namespace velmora {

/// Where a window with the frame `window` has its top left corner so that all of it lies in `area`,
/// moved as little as that takes; where it is too large its top left corner lies there. Points,
/// top-left origin of the desktop.
inline QPoint placeInside(const QRect& area, const QRect& window) {
    const QPoint last = area.bottomRight() - QPoint(window.width(), window.height()) + QPoint(1, 1);
    return {
        qMax(area.left(), qMin(window.left(), last.x())),
        qMax(area.top(), qMin(window.top(), last.y()))};
}

} // namespace velmora

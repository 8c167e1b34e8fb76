#include "platform/x11/panel/PanelPlacement.h"

#include <algorithm>
#include <cmath>

namespace velmora {

QRect panelPlace(const QRect& screen, int height, const QList<TopStrut>& docks) {
    int reserved = 0;
    for (const TopStrut& dock : docks) {
        const int depth = dock.depth - screen.top();
        if (dock.left <= screen.right() && dock.right >= screen.left() &&
            depth <= screen.height() / 2)
            reserved = std::max(reserved, depth);
    }
    return QRect(screen.left(), screen.top() + reserved, screen.width(), height) & screen;
}

std::optional<TopStrut> panelStrut(const QRect& place, const QList<QRect>& screens) {
    const bool isBelowAnother = std::ranges::any_of(screens, [&](const QRect& screen) {
        return screen.bottom() < place.top() && screen.left() <= place.right() &&
               screen.right() >= place.left();
    });
    if (isBelowAnother)
        return {};
    return TopStrut{place.bottom() + 1, place.left(), place.right()};
}

QRect panelPoints(const QRect& pixels, QPoint screenOrigin, double ratio) {
    // What a quotient leaves is far below a pixel.
    const auto pointBefore = [ratio](int pixel) {
        return static_cast<int>(std::floor(pixel / ratio + 0.01));
    };
    const auto pointAfter = [ratio](int pixel) {
        return static_cast<int>(std::ceil(pixel / ratio - 0.01));
    };
    const QRect local = pixels.translated(-screenOrigin);
    const QPoint first(pointBefore(local.x()), pointBefore(local.y()));
    const QPoint end(pointAfter(local.x() + local.width()), pointAfter(local.y() + local.height()));
    return {screenOrigin + first, QSize(end.x() - first.x(), end.y() - first.y())};
}

} // namespace velmora

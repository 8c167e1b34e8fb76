#pragma once

#include <QList>
#include <QRect>
#include <optional>

namespace velmora {

/// What a dock reserves along the top edge of the root window. Pixels.
struct TopStrut {
    int depth = 0; ///< from that edge downwards
    int left = 0;  ///< the first column
    int right = 0; ///< the last one

    bool operator==(const TopStrut&) const = default;
};

/// Where a panel of `height` pixels lies: as wide as `screen`, below what `docks` reserve there at
/// the top. A dock that takes more than half of the screen means another screen, or is wrong.
/// Pixels of the root window.
QRect panelPlace(const QRect& screen, int height, const QList<TopStrut>& docks);

/// What a panel at `place` reserves, from the desktop's edge to its own lower one. Nothing where
/// another one of `screens` lies above: it would be taken from that one.
std::optional<TopStrut> panelStrut(const QRect& place, const QList<QRect>& screens);

/// The same extent as `pixels` in Qt's coordinates, in which a screen keeps its place in pixels and
/// counts whole points of `ratio` pixels from there: the least extent of whole points that covers
/// `pixels`.
QRect panelPoints(const QRect& pixels, QPoint screenOrigin, double ratio);

} // namespace velmora

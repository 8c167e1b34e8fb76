#pragma once

#include <QByteArray>
#include <QList>
#include <QRect>
#include <optional>

/// Where a window was, kept between runs. Points, top-left origin of the desktop; the place is that
/// of the window's frame, the size that of its content.
namespace velmora::WindowFrame {

/// "x y width height".
QByteArray encoded(const QRect& frame);
/// Nothing when `data` is not four numbers with a size above zero.
std::optional<QRect> decoded(const QByteArray& data);

/// `frame`, at least `minimum` large and no larger than all `screens` together: where it is as long
/// as its title bar can be taken hold of, else as onScreen() has it.
QRect inReach(const QRect& frame, const QList<QRect>& screens, QSize minimum);

/// `frame`, moved and shrunk (to no less than `minimum`) so that it lies with its title bar on one
/// of `screens`: the one it covers most, else the first.
QRect onScreen(const QRect& frame, const QList<QRect>& screens, QSize minimum);

} // namespace velmora::WindowFrame

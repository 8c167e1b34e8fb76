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

/// `frame`, moved and shrunk (to no less than `minimum`) so that it lies on one of `screens`: the
/// one it covers most, else the first.
QRect onScreen(const QRect& frame, const QList<QRect>& screens, QSize minimum);

} // namespace velmora::WindowFrame

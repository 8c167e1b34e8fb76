#pragma once

#include <QByteArray>
#include <QList>
#include <QRect>
#include <optional>

namespace velmora {

/// Where a window was, kept between runs. Points, top-left origin of the desktop.
struct WindowFrame {
    QPoint place;  ///< of the top left corner, title bar and borders included
    QSize content; ///< without title bar and borders
    /// What title bar and borders add to the content; more than usual as long as none were seen.
    QSize decoration = {16, 44};

    /// "x y width height", then the width and the height of the decoration.
    QByteArray encoded() const;
    /// Nothing when `data` is not numbers of a desktop with a size above zero. The decoration may
    /// be missing.
    static std::optional<WindowFrame> decoded(const QByteArray& data);

    QRect outer() const { return {place, content + decoration}; }

    /// The one of `areas` that the window covers most, else the first; there is one at least.
    QRect homeArea(const QList<QRect>& areas) const;
    /// Moved and shrunk, its content to no less than `minimum`, so that all of it lies in `area`;
    /// where that is too small its top left corner does.
    WindowFrame fitted(const QRect& area, QSize minimum) const;
};

} // namespace velmora

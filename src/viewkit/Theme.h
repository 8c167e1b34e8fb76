#pragma once

#include <QColor>
#include <QFont>

/// Fonts, colours and distances that all views share.
namespace velmora::Theme {

/// Distances in points where a view names none of its own.
inline constexpr int defaultPadding = 16;
inline constexpr int defaultSpacing = 8;

/// The system font at `size` points (device-independent pixels).
QFont systemFont(int size, QFont::Weight weight = QFont::Normal);

/// `colour` at `opacity`, 0 to 1.
QColor withOpacity(QColor colour, float opacity);

} // namespace velmora::Theme

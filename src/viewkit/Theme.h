#pragma once

#include <QColor>
#include <QFont>

class QPalette;

/// Fonts, colours and distances that all views share.
namespace velmora::Theme {

/// Distances in points where a view names none of its own.
inline constexpr int defaultPadding = 16;
inline constexpr int defaultSpacing = 8;

/// The system font at `size` points (device-independent pixels).
QFont systemFont(int size, QFont::Weight weight = QFont::Normal);

/// The one accent colour, legible on light and dark.
inline constexpr QColor accent(0x3b, 0x82, 0xf6);

/// Whether `palette` belongs to a dark scheme.
bool isDark(const QPalette& palette);

/// Text of lesser weight on the window's background.
QColor secondaryText(const QPalette& palette);

} // namespace velmora::Theme

#pragma once

#include "viewkit/WindowTheme.h"

class QPainter;
class QRectF;

/// The rounded areas that windows are made of. Geometry is in points of the painter.
namespace velmora::Rounded {

/// Corner radii: of what is pressed or typed into, and of whole areas.
inline constexpr double controlRadius = 6;
inline constexpr double areaRadius = 8;

/// Fills `rect` and draws a line of one point along the inside of its edge; transparent for none.
void fill(
    QPainter& painter, const QRectF& rect, double radius, const QColor& colour,
    const QColor& line = Qt::transparent);

/// Draws the ring around what has the keyboard focus, two points wide, inside `rect`.
void drawFocusRing(
    QPainter& painter, const QRectF& rect, double radius,
    const QColor& colour = WindowTheme::colors().accent);

} // namespace velmora::Rounded

#include "viewkit/Rounded.h"

#include <QPainter>

namespace velmora::Rounded {
namespace {

void draw(
    QPainter& painter, const QRectF& rect, double radius, const QPen& pen, const QBrush& brush) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen);
    painter.setBrush(brush);
    const double inset = pen.style() == Qt::NoPen ? 0 : pen.widthF() / 2;
    painter.drawRoundedRect(
        rect.adjusted(inset, inset, -inset, -inset), radius - inset, radius - inset);
    painter.restore();
}

} // namespace

void fill(
    QPainter& painter, const QRectF& rect, double radius, const QColor& colour,
    const QColor& line) {
    draw(painter, rect, radius, line.alpha() > 0 ? QPen(line) : QPen(Qt::NoPen), colour);
}

void drawFocusRing(QPainter& painter, const QRectF& rect, double radius, const QColor& colour) {
    draw(painter, rect, radius, QPen(colour, 2), Qt::NoBrush);
}

} // namespace velmora::Rounded

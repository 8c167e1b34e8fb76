#pragma once

#include <QColor>
#include <QPixmap>
#include <QString>

class QPainter;
class QRectF;

/// Pictures of the system symbols by name. An unknown name draws nothing. Everything is loaded on
/// first use and what was drawn is kept. Main thread only.
namespace velmora::Symbols {

/// Whether `name` has a picture.
bool contains(const QString& name);

/// Side in points of the square that a symbol takes beside text of `fontSize` points: a sixth more
/// than the font's size, rounded.
int sideLength(int fontSize);

/// `name` in one colour, `side` points square at `devicePixelRatio`; a null pixmap when unknown.
QPixmap pixmap(const QString& name, double side, double devicePixelRatio, const QColor& colour);

/// Draws `name` centred in `rect` (the painter's points), as large as fits, on whole device pixels.
/// The painter must not be rotated or sheared.
void paint(QPainter& painter, const QString& name, const QRectF& rect, const QColor& colour);

} // namespace velmora::Symbols

#pragma once

#include <QColor>
#include <QStyleOption>

class QPainter;

/// The parts of Style that take more than a line to draw, in the colours of WindowTheme. Geometry
/// is in points of the painter.
namespace velmora {

void paintButton(QPainter& painter, const QStyleOptionButton& button, bool isDestructive);
QColor buttonTextColor(const QStyleOptionButton& button, bool isDestructive);
/// Draws the label of a button with a menu: the choice, and the sign for a menu.
void paintChoice(QPainter& painter, const QStyleOptionButton& button);
inline constexpr int choicePadding = 36; ///< around the text, left and right together

/// Draws the box of a check box, without its label.
void paintCheckBox(QPainter& painter, const QStyleOption& box);

/// Draws a tab as a segment of a row of joined ones.
void paintTab(QPainter& painter, const QStyleOptionTab& tab);
/// Where a tab is drawn in the room it has.
QRect tabArea(const QRect& room);
inline constexpr int tabSpace = 24; ///< above and below its contents together

void paintMenuBar(QPainter& painter, const QStyleOption& bar);
void paintMenuBarItem(QPainter& painter, const QStyleOptionMenuItem& item);
void paintMenuItem(QPainter& painter, const QStyleOptionMenuItem& item);
/// `contents` is the size of the texts.
QSize menuItemSize(const QStyleOptionMenuItem& item, const QSize& contents);

// Sizes of a vertical scroll bar, which has no arrows.
inline constexpr int scrollBarWidth = 12;
inline constexpr int scrollBarEnd = 4;        ///< free above and below the way of its handle
inline constexpr int scrollHandleLength = 28; ///< at least

/// The room of the handle, as wide as the bar.
QRect scrollHandle(const QStyleOptionSlider& bar);
void paintScrollHandle(QPainter& painter, const QStyleOptionSlider& bar);

} // namespace velmora

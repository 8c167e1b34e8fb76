#include "settings/IconButton.h"

#include "viewkit/Symbols.h"
#include "viewkit/Theme.h"

#include <QKeyEvent>
#include <QPainter>

namespace velmora {
namespace {

constexpr int cellSide = 50;
constexpr int symbolFontSize = 24;
constexpr double cornerRadius = 8;
constexpr double outlineWidth = 2;

} // namespace

IconButton::IconButton(const QString& icon, bool isSelected, std::function<void()> action)
    : icon_(icon) {
    setCheckable(true); // so that assistive programs hear which one is chosen
    setChecked(isSelected);
    setAccessibleName(icon);
    constexpr int side = cellSide + 2 * ringMargin;
    setFixedSize(side, side);
    connect(this, &IconButton::clicked, this, action);
    // What assistive programs do to a checkable button; a click leaves the mark alone.
    connect(this, &IconButton::toggled, this, std::move(action));
}

void IconButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor accent = palette().color(QPalette::Highlight);
    const QRectF cell =
        QRectF(rect()).marginsRemoved(QMarginsF(ringMargin, ringMargin, ringMargin, ringMargin));
    const float strength = isDown() ? 2.5F : isHovered() ? 1.7F : 1.0F;
    painter.setBrush(
        isSelected() ? Theme::withOpacity(accent, 0.2F * strength)
                     : Theme::withOpacity(Qt::gray, 0.1F * strength));
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(cell, cornerRadius, cornerRadius);
    painter.setBrush(Qt::NoBrush);
    if (isSelected()) {
        constexpr double inset = outlineWidth / 2;
        painter.setPen(QPen(accent, outlineWidth));
        painter.drawRoundedRect(
            cell.adjusted(inset, inset, -inset, -inset), cornerRadius - inset,
            cornerRadius - inset);
    }
    if (hasFocus()) {
        constexpr double distance = 2.5;
        painter.setPen(QPen(accent, 2));
        painter.drawRoundedRect(
            cell.adjusted(-distance, -distance, distance, distance), cornerRadius + distance,
            cornerRadius + distance);
    }
    const double side = Symbols::sideLength(symbolFontSize);
    QRectF symbol(0, 0, side, side);
    symbol.moveCenter(cell.center());
    if (Symbols::contains(icon_)) {
        Symbols::paint(painter, icon_, symbol, palette().color(QPalette::WindowText));
        return;
    }
    // Stands in for a symbol that is not there: an empty frame, as the bar shows none either.
    painter.setPen(QPen(palette().color(QPalette::PlaceholderText), 1.5, Qt::DashLine));
    painter.drawRoundedRect(symbol, cornerRadius / 2, cornerRadius / 2);
}

void IconButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        PlainButton::keyPressEvent(event);
}

} // namespace velmora

#include "settings/IconButton.h"

#include "viewkit/Rounded.h"
#include "viewkit/Symbols.h"
#include "viewkit/Theme.h"

#include <QKeyEvent>
#include <QPainter>

namespace velmora {
namespace {

constexpr int cellSide = 50;
constexpr int symbolFontSize = 24;

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
    const QColor accent = WindowTheme::colors().accent;
    const QRectF cell =
        QRectF(rect()).marginsRemoved(QMarginsF(ringMargin, ringMargin, ringMargin, ringMargin));
    const float strength = isDown() ? 2.5F : isHovered() ? 1.7F : 1.0F;
    Rounded::fill(
        painter, cell, Rounded::areaRadius,
        isSelected() ? Theme::withOpacity(accent, 0.2F * strength)
                     : Theme::withOpacity(Qt::gray, 0.1F * strength));
    if (isSelected())
        Rounded::drawFocusRing(painter, cell, Rounded::areaRadius);
    if (hasFocus())
        Rounded::drawFocusRing(
            painter, QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5),
            Rounded::areaRadius + ringMargin - 0.5);
    const double side = Symbols::sideLength(symbolFontSize);
    QRectF symbol(0, 0, side, side);
    symbol.moveCenter(cell.center());
    if (Symbols::contains(icon_)) {
        Symbols::paint(painter, icon_, symbol, WindowTheme::colors().text);
        return;
    }
    // Stands in for a symbol that is not there: an empty frame, as the bar shows none either.
    painter.setPen(QPen(WindowTheme::colors().secondaryText, 1.5, Qt::DashLine));
    painter.drawRoundedRect(symbol, Rounded::areaRadius / 2, Rounded::areaRadius / 2);
}

void IconButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        PlainButton::keyPressEvent(event);
}

} // namespace velmora

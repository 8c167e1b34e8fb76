#include "settings/AppRow.h"

#include "settings/AppIcons.h"
#include "viewkit/Symbols.h"
#include "viewkit/Theme.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr int outerPadding = 8;
constexpr int horizontalPadding = 12;
constexpr int verticalPadding = 8;
constexpr int spacing = 12;
constexpr int lineSpacing = 2;
constexpr double cornerRadius = 6;
constexpr int fallbackSymbolSize = 24;
constexpr int checkmarkSize = 13;

QFont nameFont() {
    return Theme::systemFont(13, QFont::Medium);
}

QFont identifierFont() {
    return Theme::systemFont(11);
}

int textHeight() {
    return QFontMetrics(nameFont()).height() + lineSpacing +
           QFontMetrics(identifierFont()).height();
}

/// A square of `side` centred at `centre`.
QRectF square(QPointF centre, double side) {
    return {centre.x() - side / 2, centre.y() - side / 2, side, side};
}

/// Draws `text` elided at the left edge of `rect`, in whatever direction it reads.
void drawLine(QPainter& painter, const QRectF& rect, const QFont& font, const QString& text) {
    painter.setFont(font);
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    painter.drawText(
        rect, Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignVCenter | Qt::TextSingleLine,
        QFontMetricsF(font).elidedText(text, Qt::ElideRight, rect.width()));
}

} // namespace

int AppRow::height() {
    return qMax(AppIcons::side, textHeight()) + 2 * verticalPadding;
}

void AppRow::paint(QPainter& painter, const QRect& rect, const QPalette& palette) const {
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor accent = palette.color(QPalette::Highlight);
    const QRectF box = QRectF(rect).adjusted(outerPadding, 0, -outerPadding, 0);
    painter.setPen(Qt::NoPen);
    if (isSelected)
        painter.setBrush(Theme::withOpacity(accent, 0.1F));
    else
        painter.setBrush(isHovered ? Theme::withOpacity(Qt::gray, 0.12F) : QColor(Qt::transparent));
    if (isCurrent)
        painter.setPen(QPen(accent, 2));
    painter.drawRoundedRect(box.adjusted(1, 1, -1, -1), cornerRadius, cornerRadius);

    const QRectF content = box.adjusted(horizontalPadding, 0, -horizontalPadding, 0);
    const double middle = content.center().y();
    const QPointF iconCentre(content.left() + AppIcons::side / 2.0, middle);
    const QColor text = palette.color(QPalette::WindowText);
    if (icon.isNull()) {
        Symbols::paint(
            painter, u"app"_s, square(iconCentre, Symbols::sideLength(fallbackSymbolSize)), text);
    } else {
        // An icon that comes smaller is centred rather than blown up.
        const QSizeF size = icon.deviceIndependentSize();
        painter.drawPixmap(
            QPointF(iconCentre.x() - size.width() / 2, iconCentre.y() - size.height() / 2), icon);
    }

    const double checkmark = Symbols::sideLength(checkmarkSize);
    QRectF line(content.left() + AppIcons::side + spacing, middle - textHeight() / 2.0, 0, 0);
    line.setRight(content.right() - (isSelected ? checkmark + spacing : 0));
    line.setHeight(QFontMetrics(nameFont()).height());
    painter.setPen(text);
    drawLine(painter, line, nameFont(), app.name);
    line.translate(0, line.height() + lineSpacing);
    line.setHeight(QFontMetrics(identifierFont()).height());
    painter.setPen(palette.color(QPalette::PlaceholderText)); // the secondary colour
    drawLine(painter, line, identifierFont(), app.bundleId);
    if (isSelected)
        Symbols::paint(
            painter, u"checkmark"_s,
            square(QPointF(content.right() - checkmark / 2, middle), checkmark), accent);
}

} // namespace velmora

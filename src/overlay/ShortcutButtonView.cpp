#include "overlay/ShortcutButtonView.h"

#include "viewkit/Symbols.h"
#include "viewkit/Theme.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr int horizontalPadding = 10;
constexpr int verticalPadding = 4;
constexpr int labelSpacing = 4;
constexpr int symbolFontSize = 12;
constexpr int titleFontSize = 11;
constexpr double cornerSize = 6;

/// No screen shows a wider title, and laying out one of a million characters would stall the bar.
constexpr int maximumTitleWidth = 4096;
constexpr qsizetype maximumTitleLength = 4096;

struct TitleFont {
    QFont font = Theme::systemFont(titleFontSize, QFont::Medium);
    QFontMetricsF metrics{font};
};

const TitleFont& titleFont() {
    // Never destroyed: fonts must not outlive the application object's.
    static const auto* shared = new TitleFont;
    return *shared;
}

/// Line and paragraph breaks, tabs and other controls shown as spaces.
QString inOneLine(const QString& title) {
    QString line = title.left(maximumTitleLength);
    if (line.size() < title.size())
        line += u'…';
    for (QChar& character : line) {
        const auto category = character.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph)
            character = u' ';
    }
    return line;
}

/// A rounded rectangle whose curvature sets in gently: each corner is one cubic that begins at 1.5
/// times the corner's size and passes where a circle of that size would on the diagonal.
QPainterPath continuousRoundedRect(const QRectF& rect, double corner) {
    const double reach = std::min({1.5 * corner, rect.width() / 2, rect.height() / 2});
    const double pull = (8 * corner * (1 - M_SQRT1_2) - reach) / 3;
    const auto [left, top, right, bottom] =
        std::array{rect.left(), rect.top(), rect.right(), rect.bottom()};
    QPainterPath path({left, top + reach});
    path.cubicTo(left, top + pull, left + pull, top, left + reach, top);
    path.lineTo(right - reach, top);
    path.cubicTo(right - pull, top, right, top + pull, right, top + reach);
    path.lineTo(right, bottom - reach);
    path.cubicTo(right, bottom - pull, right - pull, bottom, right - reach, bottom);
    path.lineTo(left + reach, bottom);
    path.cubicTo(left + pull, bottom, left, bottom - pull, left, bottom - reach);
    path.closeSubpath();
    path.setFillRule(Qt::WindingFill);
    return path;
}

} // namespace

ShortcutButtonView::ShortcutButtonView(const ShortcutButton& shortcut, QWidget* parent)
    : PlainButton(parent), shortcut_(shortcut) {
    // The bar never takes the keyboard focus.
    setFocusPolicy(Qt::NoFocus);
    measure();
}

void ShortcutButtonView::setShortcut(const ShortcutButton& shortcut) {
    const bool sameLabel = shortcut.title == shortcut_.title && shortcut.icon == shortcut_.icon;
    if (sameLabel && shortcut.action == shortcut_.action &&
        shortcut.alignment == shortcut_.alignment)
        return;
    shortcut_ = shortcut;
    measure();
    update();
}

void ShortcutButtonView::measure() {
    title_ = inOneLine(shortcut_.title);
    const double width = titleFont().metrics.horizontalAdvance(title_);
    titleWidth_ = std::min(static_cast<int>(std::ceil(width)), maximumTitleWidth);
    hasSymbol_ = Symbols::contains(shortcut_.icon);
    setAccessibleName(shortcut_.title.isEmpty() ? help() : shortcut_.title);
}

QSize ShortcutButtonView::sizeHint() const {
    const int symbol = hasSymbol_ ? Symbols::sideLength(symbolFontSize) : 0;
    const int spacing = hasSymbol_ && titleWidth_ > 0 ? labelSpacing : 0;
    // Whatever the title's font: those of some scripts ask for more than their glyphs take.
    const int height = Symbols::sideLength(symbolFontSize) + 2 * verticalPadding;
    return {symbol + spacing + titleWidth_ + 2 * horizontalPadding, height};
}

QString ShortcutButtonView::help() const {
    const QString action = displayName(shortcut_.action);
    return shortcut_.title.isEmpty() ? action : shortcut_.title + u'\n' + action;
}

void ShortcutButtonView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // A held plain button is dimmed.
    if (isDown())
        painter.setOpacity(0.7);
    painter.fillPath(
        continuousRoundedRect(rect(), cornerSize),
        QColor::fromRgbF(1, 1, 1, isHovered() ? 0.2F : 0.1F));
    const QColor foreground = QColor::fromRgbF(1, 1, 1, isHovered() ? 1.0F : 0.8F);
    double x = horizontalPadding;
    if (hasSymbol_) {
        const int side = Symbols::sideLength(symbolFontSize);
        Symbols::paint(
            painter, shortcut_.icon, {x, (height() - side) / 2.0, double(side), double(side)},
            foreground);
        x += side + labelSpacing;
    }
    if (titleWidth_ == 0)
        return;
    const auto& [font, metrics] = titleFont();
    const QString shown = titleWidth_ < maximumTitleWidth
                              ? title_
                              : metrics.elidedText(title_, Qt::ElideRight, titleWidth_);
    painter.setFont(font);
    painter.setPen(foreground);
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    const double top = (height() - metrics.height()) / 2;
    painter.drawText(QPointF(x, std::round(top + metrics.ascent())), shown);
}

} // namespace velmora

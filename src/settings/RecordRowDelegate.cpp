#include "settings/RecordRowDelegate.h"

#include "settings/RecordListModel.h"
#include "viewkit/Symbols.h"
#include "viewkit/Theme.h"
#include "viewkit/WindowTheme.h"

#include <QAbstractItemView>
#include <QPainter>

namespace velmora {
namespace {

constexpr int verticalPadding = 4;
constexpr int horizontalPadding = 8;
constexpr int symbolFrame = 24;
constexpr int lineSpacing = 2;
constexpr double selectionRadius = 6;
constexpr double badgeRadius = 4;
constexpr int badgeHorizontalPadding = 8;
constexpr int badgeVerticalPadding = 2;

QFont titleFont() {
    return Theme::systemFont(13, QFont::Medium);
}

QFont detailFont() {
    return Theme::systemFont(11);
}

int textHeight() {
    return QFontMetrics(titleFont()).height() + lineSpacing + QFontMetrics(detailFont()).height();
}

/// The colours of one row.
struct RowColours {
    QColor ground; ///< of the row; transparent for none
    QColor text;
    QColor secondary;
};

RowColours colours(const QStyleOptionViewItem& option) {
    const QColor text = option.palette.color(QPalette::Text);
    const QColor secondary = option.palette.color(QPalette::PlaceholderText);
    const bool hasFocus = option.widget && option.widget->hasFocus();
    if (option.state.testFlag(QStyle::State_Selected)) {
        if (hasFocus)
            return {
                option.palette.color(QPalette::Highlight), Qt::white,
                Theme::withOpacity(Qt::white, 0.85F)};
        return {Theme::withOpacity(text, 0.12F), text, text};
    }
    if (option.state.testFlag(QStyle::State_MouseOver))
        return {Theme::withOpacity(text, 0.05F), text, secondary};
    return {Qt::transparent, text, secondary};
}

/// Draws `text` elided at the leading edge of `rect`, in whatever direction it reads.
void drawLine(
    QPainter& painter, const QRect& rect, const QFont& font, const QString& text,
    Qt::LayoutDirection direction) {
    const QFontMetrics metrics(font);
    painter.setFont(font);
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    const auto edge = direction == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft;
    painter.drawText(
        rect, int(edge) | Qt::AlignAbsolute | Qt::AlignVCenter | Qt::TextSingleLine,
        metrics.elidedText(singleLine(text), Qt::ElideRight, rect.width()));
}

} // namespace

RecordRowDelegate::RecordRowDelegate(const RecordListModel& model, QObject* parent)
    : QStyledItemDelegate(parent), model_(model) {}

int RecordRowDelegate::rowHeight() {
    return qMax(symbolFrame, textHeight()) + 2 * verticalPadding;
}

QSize RecordRowDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const {
    return {symbolFrame, rowHeight()};
}

void RecordRowDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const RecordRow row = model_.row(index);
    const RowColours colour = colours(option);
    const auto placed = [&](const QRect& rect) {
        return QStyle::visualRect(option.direction, option.rect, rect);
    };
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (index == draggedIndex_)
        painter->setOpacity(0.4);

    // The ring is around what the keyboard is on without selecting it, or what a menu is about.
    const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const bool isCurrent = view && view->hasFocus() && view->currentIndex() == index && !isSelected;
    if (isCurrent || index == menuIndex_)
        painter->setPen(Theme::withOpacity(option.palette.color(QPalette::Highlight), 0.7F));
    else
        painter->setPen(Qt::NoPen);
    painter->setBrush(colour.ground);
    painter->drawRoundedRect(
        QRectF(option.rect).adjusted(1.5, 1.5, -1.5, -1.5), selectionRadius, selectionRadius);

    const QRect content = option.rect.adjusted(horizontalPadding, 0, -horizontalPadding, 0);
    const int symbolSide = Symbols::sideLength(WindowTheme::fontSize);
    QRect symbol(0, 0, symbolSide, symbolSide);
    symbol.moveCenter(QRect(content.left(), content.top(), symbolFrame, content.height()).center());
    Symbols::paint(*painter, row.symbol, placed(symbol), colour.text);

    int trailing = content.right() + 1;
    if (!row.badge.isEmpty()) {
        const QFontMetrics metrics(detailFont());
        QRect badge(
            0, 0, metrics.horizontalAdvance(row.badge) + 2 * badgeHorizontalPadding,
            metrics.height() + 2 * badgeVerticalPadding);
        badge.moveCenter(content.center());
        badge.moveRight(content.right());
        painter->setPen(Qt::NoPen);
        painter->setBrush(Theme::withOpacity(colour.secondary, isSelected ? 0.2F : 0.1F));
        painter->drawRoundedRect(placed(badge), badgeRadius, badgeRadius);
        painter->setPen(colour.secondary);
        painter->setFont(detailFont());
        painter->drawText(placed(badge), Qt::AlignCenter | Qt::TextSingleLine, row.badge);
        trailing = badge.left() - Theme::defaultSpacing;
    }

    const int leading = content.left() + symbolFrame + Theme::defaultSpacing;
    QRect line(
        leading, option.rect.center().y() - textHeight() / 2 + 1, trailing - leading,
        QFontMetrics(titleFont()).height());
    painter->setPen(colour.text);
    drawLine(*painter, placed(line), titleFont(), row.title, option.direction);
    line.translate(0, line.height() + lineSpacing);
    line.setHeight(QFontMetrics(detailFont()).height());
    painter->setPen(colour.secondary);
    drawLine(*painter, placed(line), detailFont(), row.detail, option.direction);
    painter->restore();
}

} // namespace velmora

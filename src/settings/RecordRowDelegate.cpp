#include "settings/RecordRowDelegate.h"

#include "settings/RecordListModel.h"
#include "viewkit/Rounded.h"
#include "viewkit/Symbols.h"
#include "viewkit/Theme.h"
#include "viewkit/TwoLineRow.h"
#include "viewkit/WindowTheme.h"

#include <QAbstractItemView>
#include <QPainter>

namespace velmora {
namespace {

constexpr int verticalPadding = 4;
constexpr int horizontalPadding = 8;
constexpr int symbolFrame = 24;
constexpr double badgeRadius = 4;
constexpr int badgeHorizontalPadding = 8;
constexpr int badgeVerticalPadding = 2;

/// The colours of one row.
struct RowColours {
    QColor ground; ///< of the row; transparent for none
    QColor text;
    QColor secondary;
};

RowColours colours(const QStyleOptionViewItem& option) {
    const QColor text = WindowTheme::colors().text;
    const QColor secondary = WindowTheme::colors().secondaryText;
    const bool hasFocus = option.widget && option.widget->hasFocus();
    if (option.state.testFlag(QStyle::State_Selected)) {
        if (hasFocus)
            return {WindowTheme::colors().accent, Qt::white, Theme::withOpacity(Qt::white, 0.85F)};
        return {Theme::withOpacity(text, 0.12F), text, text};
    }
    if (option.state.testFlag(QStyle::State_MouseOver))
        return {Theme::withOpacity(text, 0.05F), text, secondary};
    return {Qt::transparent, text, secondary};
}

} // namespace

RecordRowDelegate::RecordRowDelegate(const RecordListModel& model, QObject* parent)
    : QStyledItemDelegate(parent), model_(model) {}

int RecordRowDelegate::rowHeight() {
    return TwoLineRow::contentHeight(symbolFrame) + 2 * verticalPadding;
}

QSize RecordRowDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const {
    return {symbolFrame, rowHeight()};
}

void RecordRowDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const RecordRow row = model_.row(index);
    const RowColours colour = colours(option);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (index == draggedIndex_)
        painter->setOpacity(0.4);

    // The ring is around what the keyboard is on without selecting it, or what a menu is about.
    const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const bool isCurrent = view && view->hasFocus() && view->currentIndex() == index && !isSelected;
    const QRectF ground = QRectF(option.rect).adjusted(1, 1, -1, -1);
    Rounded::fill(*painter, ground, Rounded::controlRadius, colour.ground);
    if (isCurrent || index == menuIndex_)
        Rounded::drawFocusRing(*painter, ground, Rounded::controlRadius);

    TwoLineRow layout(
        option.rect.adjusted(horizontalPadding, 0, -horizontalPadding, 0), option.direction,
        symbolFrame, Theme::defaultSpacing);
    const int symbolSide = Symbols::sideLength(WindowTheme::fontSize);
    Symbols::paint(*painter, row.symbol, layout.picture({symbolSide, symbolSide}), colour.text);
    if (!row.badge.isEmpty()) {
        const QFontMetrics metrics(TwoLineRow::detailFont());
        const QSize size(
            metrics.horizontalAdvance(row.badge) + 2 * badgeHorizontalPadding,
            metrics.height() + 2 * badgeVerticalPadding);
        const QRect badge = layout.takeMark(size, Theme::defaultSpacing);
        Rounded::fill(
            *painter, badge, badgeRadius,
            Theme::withOpacity(colour.secondary, isSelected ? 0.2F : 0.1F));
        painter->setPen(colour.secondary);
        painter->setFont(TwoLineRow::detailFont());
        painter->drawText(badge, Qt::AlignCenter | Qt::TextSingleLine, row.badge);
    }
    layout.paintTexts(*painter, row.title, colour.text, row.detail, colour.secondary);
    painter->restore();
}

} // namespace velmora

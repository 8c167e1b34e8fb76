#include "viewkit/StyledParts.h"

#include "viewkit/Rounded.h"
#include "viewkit/Symbols.h"
#include "viewkit/WindowTheme.h"

#include <QPainter>
#include <QPainterPath>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr int choiceLeading = 9;   ///< from the edge to the text of a button with a menu
constexpr int choiceTrailing = 27; ///< from the text to the edge, for the chevrons

constexpr int tabMargin = 10; ///< above the tabs

constexpr double itemRadius = 4; ///< of a menu's items
constexpr int itemLeading = 12;
constexpr int itemTrailing = 14;
constexpr int itemVerticalPadding = 5;
constexpr int separatorHeight = 9;
constexpr int separatorMargin = 8;
constexpr double checkBoxRadius = 3;
constexpr int checkmarkSide = 12;
constexpr int checkmarkRoom = 18; ///< in a menu of which an item can be checked

constexpr int scrollHandleSide = 2; ///< between the handle and the sides of its bar

bool has(const QStyleOption& option, QStyle::StateFlag state) {
    return option.state.testFlag(state);
}

/// Two chevrons, up and down, around `centre`.
void paintChevrons(QPainter& painter, QPointF centre, const QColor& colour) {
    constexpr double halfWidth = 3.5, height = 3.5, distance = 2;
    painter.setPen(QPen(colour, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const int direction : {-1, 1}) {
        const QPointF base = centre + QPointF(0, direction * distance);
        painter.drawPolyline(QPolygonF(
            {base - QPointF(halfWidth, 0), base + QPointF(0, direction * height),
             base + QPointF(halfWidth, 0)}));
    }
}

/// A rectangle whose corners on one side only are round.
QPainterPath segment(const QRectF& rect, double radius, bool roundLeft, bool roundRight) {
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addRoundedRect(rect, radius, radius);
    if (!roundLeft)
        path.addRect(rect.adjusted(0, 0, -rect.width() / 2, 0));
    if (!roundRight)
        path.addRect(rect.adjusted(rect.width() / 2, 0, 0, 0));
    return path.simplified();
}

} // namespace

void paintButton(QPainter& painter, const QStyleOptionButton& button, bool isDestructive) {
    const auto& colors = WindowTheme::colors();
    const bool isDefault = button.features.testFlag(QStyleOptionButton::DefaultButton);
    QColor fill = colors.button, line = colors.border;
    if (!has(button, QStyle::State_Enabled)) {
        fill = colors.window;
    } else if (isDefault) {
        const bool isLit = has(button, QStyle::State_MouseOver) && !isDestructive;
        fill = isDestructive ? colors.dangerFill : isLit ? colors.accentHover : colors.accent;
        line = fill;
    } else if (has(button, QStyle::State_Sunken)) {
        fill = colors.buttonPressed;
    } else if (has(button, QStyle::State_MouseOver)) {
        fill = colors.buttonHover;
    }
    Rounded::fill(painter, button.rect, Rounded::controlRadius, fill, line);
    if (has(button, QStyle::State_HasFocus))
        Rounded::drawFocusRing(
            painter, button.rect, Rounded::controlRadius, isDefault ? colors.text : colors.accent);
}

QColor buttonTextColor(const QStyleOptionButton& button, bool isDestructive) {
    const auto& colors = WindowTheme::colors();
    if (!has(button, QStyle::State_Enabled))
        return colors.disabledText;
    if (button.features.testFlag(QStyleOptionButton::DefaultButton))
        return Qt::white;
    return isDestructive ? colors.danger : colors.text;
}

void paintChoice(QPainter& painter, const QStyleOptionButton& button) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor colour = buttonTextColor(button, false);
    const auto placed = [&](const QRect& rect) {
        return QStyle::visualRect(button.direction, button.rect, rect);
    };
    painter.setPen(colour);
    painter.drawText(
        placed(button.rect.adjusted(choiceLeading, 0, -choiceTrailing, 0)),
        int(QStyle::visualAlignment(button.direction, Qt::AlignLeft | Qt::AlignVCenter)) |
            Qt::TextHideMnemonic | Qt::TextSingleLine | Qt::TextDontClip,
        button.text);
    QRect sign = button.rect;
    sign.setLeft(sign.right() - choiceTrailing);
    paintChevrons(painter, placed(sign).toRectF().center(), colour);
    painter.restore();
}

void paintCheckBox(QPainter& painter, const QStyleOption& box) {
    const auto& colors = WindowTheme::colors();
    const bool isChecked = has(box, QStyle::State_On);
    const bool isPressed = has(box, QStyle::State_Sunken);
    const QColor& fill = isChecked   ? isPressed ? colors.accentHover : colors.accent
                         : isPressed ? colors.buttonPressed
                                     : colors.button;
    Rounded::fill(painter, box.rect, checkBoxRadius, fill, isChecked ? fill : colors.secondaryText);
    if (isChecked)
        Symbols::paint(painter, u"checkmark"_s, box.rect, Qt::white);
}

QRect tabArea(const QRect& room) {
    return room.adjusted(0, tabMargin, 0, 0);
}

void paintTab(QPainter& painter, const QStyleOptionTab& tab) {
    const auto& colors = WindowTheme::colors();
    const bool isSelected = has(tab, QStyle::State_Selected);
    const bool isOnly = tab.position == QStyleOptionTab::OnlyOneTab;
    const bool isMirrored = tab.direction == Qt::RightToLeft;
    const auto isAt = [&](QStyleOptionTab::TabPosition end) {
        return isOnly || tab.position == end;
    };
    const auto left = isMirrored ? QStyleOptionTab::End : QStyleOptionTab::Beginning;
    const auto right = isMirrored ? QStyleOptionTab::Beginning : QStyleOptionTab::End;
    // Joined segments share the line between them, which is the right one's.
    QRectF area = tabArea(tab.rect);
    if (!isAt(right))
        area.setRight(area.right() + 1);
    painter.save();
    painter.setClipRect(tab.rect);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colors.border);
    painter.setBrush(
        isSelected                          ? colors.selected
        : has(tab, QStyle::State_MouseOver) ? colors.buttonHover
                                            : colors.button);
    painter.drawPath(segment(
        area.adjusted(0.5, 0.5, -0.5, -0.5), Rounded::controlRadius, isAt(left), isAt(right)));
    if (has(tab, QStyle::State_HasFocus)) {
        painter.setPen(QPen(colors.accent, 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(segment(
            QRectF(tabArea(tab.rect)).adjusted(1, 1, -1, -1), Rounded::controlRadius - 1,
            isAt(left), isAt(right)));
    }
    painter.restore();
}

void paintMenuBar(QPainter& painter, const QStyleOption& bar) {
    const auto& colors = WindowTheme::colors();
    painter.fillRect(bar.rect, colors.window);
    painter.fillRect(bar.rect.left(), bar.rect.bottom(), bar.rect.width(), 1, colors.border);
}

void paintMenuBarItem(QPainter& painter, const QStyleOptionMenuItem& item) {
    const auto& colors = WindowTheme::colors();
    painter.fillRect(item.rect, colors.window);
    const bool isOpen = has(item, QStyle::State_Selected);
    if (isOpen)
        Rounded::fill(painter, item.rect, itemRadius, colors.accent);
    painter.setPen(isOpen ? QColor(Qt::white) : colors.text);
    painter.drawText(
        item.rect, Qt::AlignCenter | Qt::TextHideMnemonic | Qt::TextSingleLine, item.text);
}

QSize menuItemSize(const QStyleOptionMenuItem& item, const QSize& contents) {
    if (item.menuItemType == QStyleOptionMenuItem::Separator)
        return {contents.width(), separatorHeight};
    const int checkmark = item.menuHasCheckableItems ? checkmarkRoom : 0;
    const int keys = item.text.contains(u'\t') ? itemLeading : 0;
    return {
        contents.width() + checkmark + itemLeading + keys + itemTrailing,
        item.fontMetrics.height() + 2 * itemVerticalPadding};
}

void paintMenuItem(QPainter& painter, const QStyleOptionMenuItem& item) {
    const auto& colors = WindowTheme::colors();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const auto placed = [&](const QRect& rect) {
        return QStyle::visualRect(item.direction, item.rect, rect);
    };
    if (item.menuItemType == QStyleOptionMenuItem::Separator) {
        QRect line = item.rect.adjusted(separatorMargin, 0, -separatorMargin, 0);
        line.setTop(item.rect.center().y());
        line.setHeight(1);
        painter.fillRect(line, colors.border);
        painter.restore();
        return;
    }
    const bool isEnabled = has(item, QStyle::State_Enabled);
    const bool isLit = isEnabled && has(item, QStyle::State_Selected);
    if (isLit)
        Rounded::fill(painter, item.rect, itemRadius, colors.accent);
    const QColor text = isLit ? QColor(Qt::white) : isEnabled ? colors.text : colors.secondaryText;
    QRect line = item.rect.adjusted(itemLeading, 0, -itemTrailing, 0);
    if (item.menuHasCheckableItems) {
        QRect mark(line.left(), 0, checkmarkSide, checkmarkSide);
        mark.moveTop(line.center().y() - checkmarkSide / 2);
        if (item.checked)
            Symbols::paint(painter, u"checkmark"_s, placed(mark), text);
        line.setLeft(line.left() + checkmarkRoom);
    }
    painter.setFont(item.font);
    painter.setPen(text);
    const auto paintText = [&](QStringView shown, Qt::Alignment edge) {
        painter.drawText(
            placed(line),
            int(QStyle::visualAlignment(item.direction, edge | Qt::AlignVCenter)) |
                Qt::TextHideMnemonic | Qt::TextSingleLine,
            shown.toString());
    };
    const QList<QStringView> parts = QStringView(item.text).split(u'\t');
    paintText(parts.first(), Qt::AlignLeft);
    if (parts.size() > 1)
        paintText(parts.last(), Qt::AlignRight);
    painter.restore();
}

QRect scrollHandle(const QStyleOptionSlider& bar) {
    const QRect room = bar.rect.adjusted(0, scrollBarEnd, 0, -scrollBarEnd);
    const int range = bar.maximum - bar.minimum;
    int length = room.height();
    if (range > 0)
        length = int(qint64(length) * bar.pageStep / (qint64(range) + bar.pageStep));
    length = qBound(qMin(scrollHandleLength, room.height()), length, room.height());
    const int start = QStyle::sliderPositionFromValue(
        bar.minimum, bar.maximum, bar.sliderPosition, room.height() - length, bar.upsideDown);
    return {room.left(), room.top() + start, room.width(), length};
}

void paintScrollHandle(QPainter& painter, const QStyleOptionSlider& bar) {
    const QRectF handle = scrollHandle(bar).adjusted(scrollHandleSide, 0, -scrollHandleSide, 0);
    Rounded::fill(painter, handle, handle.width() / 2, WindowTheme::colors().scrollHandle);
}

} // namespace velmora

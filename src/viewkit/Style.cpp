#include "viewkit/Style.h"

#include "viewkit/DestructiveButton.h"
#include "viewkit/Rounded.h"
#include "viewkit/StyledParts.h"
#include "viewkit/Theme.h"
#include "viewkit/WindowTheme.h"

#include <QAbstractScrollArea>
#include <QDialogButtonBox>
#include <QFrame>
#include <QPainter>
#include <QPlainTextEdit>
#include <QStyleOption>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr int controlHeight = 26;

// Tool tips are dark in both schemes, as the bar is.
constexpr QColor toolTipColor(0x26, 0x26, 0x2b);
constexpr QColor toolTipTextColor(0xf2, 0xf2, 0xf4);
constexpr QColor toolTipBorderColor(0x55, 0x55, 0x5d);
constexpr int toolTipFontSize = 12;

bool isCard(const QWidget* widget) {
    const auto* frame = qobject_cast<const QFrame*>(widget);
    return frame && frame->frameShape() == QFrame::StyledPanel &&
           frame->frameShadow() == QFrame::Plain;
}

bool isDestructive(const QWidget* button) {
    return qobject_cast<const DestructiveButton*>(button);
}

/// Draws what is typed into or scrolled: with the focus ring or, without the focus, an outline.
void paintWell(
    QPainter& painter, const QStyleOption& option, double radius, const QColor& outline) {
    const bool hasFocus = option.state.testFlag(QStyle::State_HasFocus);
    Rounded::fill(
        painter, option.rect, radius, WindowTheme::colors().base,
        hasFocus ? Qt::transparent : outline);
    if (hasFocus)
        Rounded::drawFocusRing(painter, option.rect, radius);
}

void paintFrame(QPainter& painter, const QStyleOption& option, const QWidget* widget) {
    const auto& colors = WindowTheme::colors();
    const bool isTextEdit = qobject_cast<const QPlainTextEdit*>(widget);
    if (isCard(widget))
        Rounded::fill(painter, option.rect, Rounded::areaRadius, colors.base);
    else
        paintWell(
            painter, option, isTextEdit ? Rounded::controlRadius : Rounded::areaRadius,
            colors.outline);
}

} // namespace

Style::Style() : QProxyStyle(u"fusion"_s) {}

void Style::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    // Its frame is filled by drawPrimitive(), and the viewport's corners would cover the ring.
    if (auto* area = qobject_cast<QAbstractScrollArea*>(widget);
        area && area->frameShape() == QFrame::StyledPanel)
        area->viewport()->setAutoFillBackground(false);
    if (!widget->inherits("QTipLabel"))
        return;
    QPalette palette = widget->palette();
    palette.setColor(QPalette::ToolTipBase, toolTipColor);
    palette.setColor(QPalette::ToolTipText, toolTipTextColor);
    widget->setPalette(palette);
    widget->setFont(Theme::systemFont(toolTipFontSize));
}

void Style::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter,
    const QWidget* widget) const {
    const auto& colors = WindowTheme::colors();
    switch (element) {
    case PE_Frame:
        paintFrame(*painter, *option, widget);
        break;
    case PE_PanelLineEdit:
        // One without a frame is part of something else.
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
            frame && frame->lineWidth > 0)
            paintWell(*painter, *option, Rounded::controlRadius, colors.border);
        break;
    case PE_FrameFocusRect:
        Rounded::drawFocusRing(*painter, option->rect, Rounded::controlRadius);
        break;
    case PE_IndicatorCheckBox:
        paintCheckBox(*painter, *option);
        break;
    case PE_PanelMenu:
        painter->fillRect(option->rect, colors.base);
        break;
    case PE_FrameMenu:
        painter->setPen(colors.border);
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
        break;
    case PE_PanelTipLabel:
        painter->setPen(toolTipBorderColor);
        painter->setBrush(toolTipColor);
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
        break;
    case PE_FrameTabWidget:
    case PE_FrameTabBarBase:
    case PE_PanelMenuBar:
    case PE_FrameLineEdit:
        break;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void Style::drawControl(
    ControlElement element, const QStyleOption* option, QPainter* painter,
    const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option);
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element == CE_PushButtonBevel && button) {
        paintButton(*painter, *button, isDestructive(widget));
    } else if (element == CE_PushButtonLabel && button) {
        if (button->features.testFlag(QStyleOptionButton::HasMenu)) {
            paintChoice(*painter, *button);
            return;
        }
        QStyleOptionButton label = *button;
        label.palette.setColor(
            QPalette::ButtonText, buttonTextColor(*button, isDestructive(widget)));
        QProxyStyle::drawControl(element, &label, painter, widget);
    } else if (element == CE_TabBarTabShape && tab) {
        paintTab(*painter, *tab);
    } else if (element == CE_TabBarTabLabel && tab) {
        QStyleOptionTab label = *tab;
        label.rect = tabArea(label.rect);
        label.state.setFlag(State_HasFocus, false); // the shape has the ring
        QProxyStyle::drawControl(element, &label, painter, widget);
    } else if (element == CE_MenuBarItem && item) {
        paintMenuBarItem(*painter, *item);
    } else if (element == CE_MenuBarEmptyArea) {
        paintMenuBar(*painter, *option);
    } else if (element == CE_MenuItem && item) {
        paintMenuItem(*painter, *item);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void Style::drawComplexControl(
    ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
    const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || !bar) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    if (bar->minimum == bar->maximum)
        return; // all is in sight
    paintScrollHandle(*painter, *bar);
}

QRect Style::subControlRect(
    ComplexControl control, const QStyleOptionComplex* option, SubControl part,
    const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || !bar)
        return QProxyStyle::subControlRect(control, option, part, widget);
    const QRect handle = scrollHandle(*bar);
    QRect area = bar->rect;
    switch (part) {
    case SC_ScrollBarSlider:
        return handle;
    case SC_ScrollBarGroove:
        return area.adjusted(0, scrollBarEnd, 0, -scrollBarEnd);
    case SC_ScrollBarSubPage:
        area.setBottom(handle.top() - 1);
        return area;
    case SC_ScrollBarAddPage:
        area.setTop(handle.bottom() + 1);
        return area;
    default: // there are no arrows
        return {};
    }
}

QRect Style::subElementRect(
    SubElement element, const QStyleOption* option, const QWidget* widget) const {
    if (element == SE_TabWidgetTabContents)
        return QProxyStyle::subElementRect(SE_TabWidgetTabPane, option, widget);
    if (element == SE_PushButtonContents)
        return option->rect;
    if (element == SE_LineEditContents) {
        const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        constexpr int padding = 8;
        return frame && frame->lineWidth > 0 ? option->rect.adjusted(padding, 1, -padding, -1)
                                             : option->rect;
    }
    return QProxyStyle::subElementRect(element, option, widget);
}

QSize Style::sizeFromContents(
    ContentsType type, const QStyleOption* option, const QSize& contents,
    const QWidget* widget) const {
    const auto padded = [&](int horizontal, int vertical) {
        return QSize(
            contents.width() + horizontal, qMax(controlHeight, contents.height() + vertical));
    };
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    switch (type) {
    case CT_PushButton:
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
            button && button->features.testFlag(QStyleOptionButton::HasMenu))
            return padded(choicePadding, 8);
        return padded(30, 8);
    case CT_LineEdit:
        return frame && frame->lineWidth > 0 ? padded(16, 8) : contents;
    case CT_TabBarTab:
        return contents;
    case CT_MenuBarItem:
        return contents + QSize(18, 8);
    case CT_MenuItem:
        return item ? menuItemSize(*item, contents) : contents;
    default:
        return QProxyStyle::sizeFromContents(type, option, contents, widget);
    }
}

int Style::pixelMetric(
    PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
    case PM_DefaultFrameWidth: // that of the focus ring
        return isCard(widget) ? 0 : 2;
    case PM_ScrollBarExtent:
        return scrollBarWidth;
    case PM_ScrollBarSliderMin:
        return scrollHandleLength;
    case PM_TabBarTabHSpace:
        return 36;
    case PM_TabBarTabVSpace:
        return tabSpace;
    case PM_MenuBarItemSpacing:
        return 6;
    case PM_MenuBarHMargin:
    case PM_MenuHMargin:
    case PM_MenuVMargin:
        return 4;
    case PM_MenuBarVMargin:
        return 2;
    case PM_MenuPanelWidth:
        return 1;
    case PM_ToolTipLabelFrameWidth:
        return 3;
    case PM_MenuBarPanelWidth:
    case PM_MenuButtonIndicator:
    case PM_TabBarBaseOverlap:
    case PM_TabBarTabOverlap:
    case PM_TabBarTabShiftVertical:
    case PM_TabBarTabShiftHorizontal:
    case PM_ScrollView_ScrollBarSpacing:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int Style::styleHint(
    StyleHint hint, const QStyleOption* option, const QWidget* widget,
    QStyleHintReturn* details) const {
    switch (hint) {
    case SH_TabBar_Alignment:
        return Qt::AlignCenter;
    case SH_DialogButtonLayout:
        return QDialogButtonBox::GnomeLayout;
    case SH_MenuBar_AltKeyNavigation: // the release after Option+M would take the keyboard
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return false;
    default:
        return QProxyStyle::styleHint(hint, option, widget, details);
    }
}

} // namespace velmora

#pragma once

#include <QProxyStyle>

namespace velmora {

/// The look of everything that Qt draws for us, windows, menus and tool tips, over the Fusion style
/// in the colours of WindowTheme. What a widget is stands in its own properties:
/// - a default button is prominent, one with a menu shows the choice made in it, and what cannot be
///   undone has a DestructiveButton;
/// - a frame of shape StyledPanel is a well; with a plain shadow it is a card without an outline.
/// Set it before the application object is made, or another is made first for nothing.
class Style : public QProxyStyle {
    Q_OBJECT
public:
    Style();

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    void drawPrimitive(
        PrimitiveElement element, const QStyleOption* option, QPainter* painter,
        const QWidget* widget) const override;
    void drawControl(
        ControlElement element, const QStyleOption* option, QPainter* painter,
        const QWidget* widget) const override;
    void drawComplexControl(
        ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
        const QWidget* widget) const override;
    QRect subControlRect(
        ComplexControl control, const QStyleOptionComplex* option, SubControl part,
        const QWidget* widget) const override;
    QRect subElementRect(
        SubElement element, const QStyleOption* option, const QWidget* widget) const override;
    QSize sizeFromContents(
        ContentsType type, const QStyleOption* option, const QSize& contents,
        const QWidget* widget) const override;
    int pixelMetric(
        PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(
        StyleHint hint, const QStyleOption* option, const QWidget* widget,
        QStyleHintReturn* details) const override;
};

} // namespace velmora

#include "viewkit/WindowTheme.h"

#include "foundation/Bundle.h"

#include <QApplication>
#include <QPalette>
#include <QScreen>
#include <QWidget>
#include <utility>

using namespace Qt::StringLiterals;

namespace velmora::WindowTheme {
namespace {

const Colors lightColors{
    .window = 0xf5f5f7,
    .base = 0xffffff,
    .text = 0x1d1d1f,
    .secondaryText = 0x66666b,
    .disabledText = 0x9d9da4,
    .border = 0xcfcfd4,
    .outline = 0xdadadd,
    .button = 0xffffff,
    .buttonHover = 0xf0f0f3,
    .buttonPressed = 0xe2e2e7,
    .selected = 0xdcdce2,
    .accent = 0x0a62cf,
    .accentHover = 0x0856b8,
    .accentText = 0x0a62cf,
    .danger = 0xc0251a,
    .dangerFill = 0xc4271b,
    .scrollHandle = 0xb4b4ba,
};
const Colors darkColors{
    .window = 0x1f1f22,
    .base = 0x29292d,
    .text = 0xf2f2f4,
    .secondaryText = 0xa6a6ad,
    .disabledText = 0x74747b,
    .border = 0x4a4a50,
    .outline = 0x46464a,
    .button = 0x38383d,
    .buttonHover = 0x424248,
    .buttonPressed = 0x303034,
    .selected = 0x56565d,
    .accent = 0x2a72dc,
    .accentHover = 0x2566cb,
    .accentText = 0x5c9cf5,
    .danger = 0xff8f86,
    .dangerFill = 0xcf3529,
    .scrollHandle = 0x66666d,
};

struct Scheme {
    std::function<void()> ask; ///< until it was called
    ColorScheme current = ColorScheme::light;
    bool isPrepared = false;
};

Scheme& scheme() {
    static auto* instance = new Scheme;
    return *instance;
}

QPalette palette(const Colors& colors) {
    QPalette palette;
    palette.setColor(QPalette::Window, colors.window);
    palette.setColor(QPalette::WindowText, colors.text);
    palette.setColor(QPalette::Base, colors.base);
    palette.setColor(QPalette::AlternateBase, colors.window);
    palette.setColor(QPalette::Text, colors.text);
    palette.setColor(QPalette::PlaceholderText, colors.secondaryText);
    palette.setColor(QPalette::Button, colors.button);
    palette.setColor(QPalette::ButtonText, colors.text);
    palette.setColor(QPalette::Highlight, colors.accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, colors.accentText);
    palette.setColor(QPalette::BrightText, colors.danger);
    palette.setColor(QPalette::Mid, colors.border);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, colors.disabledText);
    return palette;
}

} // namespace

const Colors& colors() {
    return scheme().current == ColorScheme::dark ? darkColors : lightColors;
}

void setSchemeSource(std::function<void()> ask) {
    scheme().ask = std::move(ask);
}

void setColorScheme(ColorScheme newScheme) {
    if (std::exchange(scheme().current, newScheme) != newScheme && scheme().isPrepared)
        QApplication::setPalette(palette(colors()));
}

void prepare() {
    if (std::exchange(scheme().isPrepared, true))
        return;
    if (const auto ask = std::exchange(scheme().ask, nullptr))
        ask();
    // In points, for Qt's SVG reader takes a text that gives no size of its own to be that many
    // points, and draws none of it when there are none.
    QFont font = QApplication::font();
    font.setPointSizeF(fontSize * 72 / QGuiApplication::primaryScreen()->logicalDotsPerInchY());
    QApplication::setFont(font);
    QApplication::setPalette(palette(colors()));
}

void follow(QWidget& window) {
    prepare();
    window.setFont(
        QApplication::font()); // made before it, the window would still have the one before
    if (const auto icon = Bundle::path(u"i-menu"_s, u"png"_s, u"icon"_s))
        window.setWindowIcon(QIcon(*icon));
}

} // namespace velmora::WindowTheme

#include "viewkit/WindowTheme.h"

#include "foundation/Bundle.h"
#include "viewkit/Theme.h"

#include <QApplication>
#include <QPalette>
#include <QScreen>
#include <QWidget>
#include <utility>

using namespace Qt::StringLiterals;

namespace velmora::WindowTheme {
namespace {

/// The colours that differ between the schemes.
struct Colors {
    QColor window;
    QColor base;
    QColor text;
    QColor secondaryText;
    QColor border;
    QColor button;
    QColor buttonHover;
    QColor buttonPressed;
    QColor accent;
    QColor accentHover;
    QColor accentText; ///< text in the accent colour, on window and base
    QColor scrollHandle;
    QColor disabledText;
    QColor selected;   ///< a chosen tab
    QColor outline;    ///< around an area of text: secondary text at opacity 0.2, on its ground
    QColor danger;     ///< text of what cannot be undone
    QColor dangerFill; ///< under white text
};

// Text on window and on accent keeps a contrast of at least 4.5 to 1 in both.
const Colors lightColors{
    .window = QColor(0xf5f5f7),
    .base = QColor(0xffffff),
    .text = QColor(0x1d1d1f),
    .secondaryText = QColor(0x66666b),
    .border = QColor(0xcfcfd4),
    .button = QColor(0xffffff),
    .buttonHover = QColor(0xf0f0f3),
    .buttonPressed = QColor(0xe2e2e7),
    .accent = Theme::accent(false),
    .accentHover = QColor(0x0856b8),
    .accentText = Theme::accent(false),
    .scrollHandle = QColor(0xb4b4ba),
    .disabledText = QColor(0x9d9da4),
    .selected = QColor(0xdcdce2),
    .outline = QColor(0xdadadd),
    .danger = QColor(0xc4271b),
    .dangerFill = QColor(0xc4271b),
};
const Colors darkColors{
    .window = QColor(0x1f1f22),
    .base = QColor(0x29292d),
    .text = QColor(0xf2f2f4),
    .secondaryText = QColor(0xa6a6ad),
    .border = QColor(0x4a4a50),
    .button = QColor(0x38383d),
    .buttonHover = QColor(0x424248),
    .buttonPressed = QColor(0x303034),
    .accent = Theme::accent(true),
    .accentHover = QColor(0x3a7fe4),
    .accentText = QColor(0x5c9cf5),
    .scrollHandle = QColor(0x66666d),
    .disabledText = QColor(0x74747b),
    .selected = QColor(0x56565d),
    .outline = QColor(0x46464a),
    .danger = QColor(0xff7a70),
    .dangerFill = QColor(0xcf3529),
};

struct Scheme {
    std::function<void()> ask; ///< until it was called
    ColorScheme current = ColorScheme::light;
    QList<QWidget*> followers;
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

QString styleSheet(const Colors& colors) {
    QString sheet = uR"(
QPushButton {
    background: @button; color: @text; border: 1px solid @border; border-radius: 6px;
    padding: 3px 14px; min-height: 18px;
}
QPushButton:hover { background: @hover; }
QPushButton:pressed { background: @pressed; }
QPushButton:default { background: @accent; color: white; border-color: @accent; }
QPushButton:default:hover { background: @accenthover; border-color: @accenthover; }
QPushButton:focus { border: 2px solid @accent; padding: 2px 13px; outline: none; }
QPushButton:default:focus { border: 2px solid @text; }
QPushButton:disabled { color: @disabled; background: @window; border-color: @border; }
QLineEdit {
    background: @base; color: @text; border: 1px solid @border; border-radius: 6px;
    padding: 3px 7px; min-height: 18px;
    selection-background-color: @accent; selection-color: white;
}
QLineEdit:focus { border: 2px solid @accent; padding: 2px 6px; }
QLineEdit[plain="true"] { background: transparent; border: none; padding: 0; }
QPushButton[destructive="true"] { color: @danger; }
QPushButton[destructive="true"]:default { background: @fill; color: white; border-color: @fill; }
QPushButton[destructive="true"]:default:focus { border-color: @text; }
QPlainTextEdit {
    background: @base; color: @text; border: 1px solid @outline; border-radius: 6px; padding: 3px;
    selection-background-color: @accent; selection-color: white;
}
QPlainTextEdit:focus { border: 2px solid @accent; padding: 2px; }
QComboBox {
    background: @button; color: @text; border: 1px solid @border; border-radius: 6px;
    padding: 3px 26px 3px 9px; min-height: 18px;
}
QComboBox:hover { background: @hover; }
QComboBox:focus { border: 2px solid @accent; padding: 2px 25px 2px 8px; }
QComboBox { combobox-popup: 0; }
QComboBox::drop-down { border: none; width: 0; }
QWidget[box="true"] { background: @base; border: none; border-radius: 8px; }
QScrollArea { background: transparent; border: none; }
QListView { background: transparent; border: none; outline: none; }
QListView[inset="true"] {
    background: @base; border: 1px solid @border; border-radius: 8px; padding: 4px;
}
QListView[inset="true"]:focus { border: 2px solid @accent; padding: 3px; }
QComboBox QAbstractItemView {
    background: @base; color: @text; border: 1px solid @border; padding: 4px; outline: none;
}
QComboBox QAbstractItemView::item { min-height: 24px; padding: 0 6px; border-radius: 4px; }
QComboBox QAbstractItemView::item:selected { background: @accent; color: white; }
QTabWidget::pane { border: none; }
QTabWidget::tab-bar { alignment: center; }
QTabBar { outline: none; }
QTabBar::tab {
    background: @button; color: @text; border: 1px solid @border; padding: 5px 14px;
    min-height: 18px; margin-top: 10px;
}
QTabBar::tab:first { border-top-left-radius: 6px; border-bottom-left-radius: 6px; }
QTabBar::tab:last {
    border-top-right-radius: 6px; border-bottom-right-radius: 6px; border-left: none;
}
QTabBar::tab:hover { background: @hover; }
QTabBar::tab:selected { background: @selected; }
QTabBar::tab:focus { border: 2px solid @accent; padding: 4px 13px; }
QMenuBar { background: @window; color: @text; border-bottom: 1px solid @border; padding: 2px 4px; }
QMenuBar::item { background: transparent; padding: 4px 9px; border-radius: 4px; }
QMenuBar::item:selected { background: @accent; color: white; }
QMenu { background: @base; color: @text; border: 1px solid @border; padding: 4px; }
QMenu::item { padding: 5px 14px 5px 12px; border-radius: 4px; }
QMenu::item:selected { background: @accent; color: white; }
QMenu::item:disabled { color: @secondary; background: transparent; }
QMenu::separator { height: 1px; background: @border; margin: 4px 8px; }
QToolTip { background: @base; color: @text; border: 1px solid @border; padding: 3px 5px; }
QScrollBar:vertical { background: transparent; width: 12px; margin: 4px 2px; }
QScrollBar::handle:vertical { background: @scroll; border-radius: 4px; min-height: 28px; }
QScrollBar::handle:vertical:disabled { background: transparent; }
QScrollBar::add-line, QScrollBar::sub-line { height: 0; width: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
)"_s;
    const std::initializer_list<std::pair<QLatin1StringView, QString>> values = {
        {"@accenthover"_L1, colors.accentHover.name()}, {"@base"_L1, colors.base.name()},
        {"@button"_L1, colors.button.name()},           {"@text"_L1, colors.text.name()},
        {"@border"_L1, colors.border.name()},           {"@hover"_L1, colors.buttonHover.name()},
        {"@pressed"_L1, colors.buttonPressed.name()},   {"@accent"_L1, colors.accent.name()},
        {"@secondary"_L1, colors.secondaryText.name()}, {"@window"_L1, colors.window.name()},
        {"@scroll"_L1, colors.scrollHandle.name()},     {"@selected"_L1, colors.selected.name()},
        {"@disabled"_L1, colors.disabledText.name()},   {"@outline"_L1, colors.outline.name()},
        {"@danger"_L1, colors.danger.name()},           {"@fill"_L1, colors.dangerFill.name()},
    };
    for (const auto& [name, value] : values)
        sheet.replace(name, value);
    return sheet;
}

const Colors& currentColors() {
    return scheme().current == ColorScheme::dark ? darkColors : lightColors;
}

/// Palette and font go by way of the application: a window with a style sheet keeps its own from
/// its children. The font's size is in points, for Qt's SVG reader takes a text that gives no size
/// of its own to be that many points, and draws none of it when there are none.
void applyToApplication() {
    QFont font = QApplication::font();
    font.setPointSizeF(fontSize * 72 / QGuiApplication::primaryScreen()->logicalDotsPerInchY());
    QApplication::setFont(font);
    QApplication::setPalette(palette(currentColors()));
}

} // namespace

void setSchemeSource(std::function<void()> ask) {
    scheme().ask = std::move(ask);
}

void setColorScheme(ColorScheme newScheme) {
    if (scheme().current == newScheme)
        return;
    scheme().current = newScheme;
    applyToApplication(); // menus outside these windows follow it too
    for (QWidget* window : scheme().followers)
        window->setStyleSheet(styleSheet(currentColors()));
}

ColorScheme colorScheme() {
    if (const auto ask = std::exchange(scheme().ask, nullptr))
        ask();
    return scheme().current;
}

void follow(QWidget& window) {
    colorScheme();
    if (scheme().followers.isEmpty())
        applyToApplication();
    scheme().followers.append(&window);
    QObject::connect(
        &window, &QObject::destroyed, [window = &window] { scheme().followers.removeOne(window); });
    // Sheets show the icon of their window.
    if (const auto icon = Bundle::path(u"i-menu"_s, u"png"_s, u"icon"_s);
        icon && !window.parentWidget())
        window.setWindowIcon(QIcon(*icon));
    // The new font first: under a style sheet the window would keep the one it had.
    window.ensurePolished();
    window.setStyleSheet(styleSheet(currentColors()));
}

} // namespace velmora::WindowTheme

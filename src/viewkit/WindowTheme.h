#pragma once

#include <QColor>
#include <functional>

class QWidget;

namespace velmora {

/// The desktop's preference for its windows.
enum class ColorScheme { light, dark };

/// The colours of Velmora's ordinary windows and menus: light or dark as the desktop. The bar
/// itself is always dark and does not use them. Main thread only.
namespace WindowTheme {

/// Size of ordinary text, in points.
inline constexpr int fontSize = 13;

/// The colours of a scheme. Text on window, base and accent keeps a contrast of at least 4.5 to 1.
struct Colors {
    QColor window;
    QColor base;
    QColor text;
    QColor secondaryText;
    QColor disabledText;
    QColor border;
    QColor outline; ///< around an area of text: secondary text at opacity 0.2, on its ground
    QColor button;
    QColor buttonHover;
    QColor buttonPressed;
    QColor selected; ///< a chosen tab
    QColor accent;   ///< under white text
    QColor accentHover;
    QColor accentText; ///< text in the accent colour, on window and base
    QColor danger;     ///< text of what cannot be undone
    QColor dangerFill; ///< under white text
    QColor scrollHandle;
};

/// The colours of the scheme in force.
const Colors& colors();

/// `ask` is called once, before the scheme is needed for the first time; what it learns, then and
/// later, it gives to setColorScheme().
void setSchemeSource(std::function<void()> ask);

/// Sets the scheme of all windows and menus, now and later.
void setColorScheme(ColorScheme scheme);

/// Gives the application the palette and the font of its windows. To be called before the first
/// window or menu is made; does nothing after that.
void prepare();

/// prepare(), and the program's icon for `window`, which its sheets show too.
void follow(QWidget& window);

} // namespace WindowTheme
} // namespace velmora

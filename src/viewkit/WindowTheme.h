#pragma once

#include <functional>

class QWidget;

namespace velmora {

/// The desktop's preference for its windows.
enum class ColorScheme { light, dark };

/// The look of Velmora's ordinary windows: light or dark as the desktop, one accent colour, a
/// visible focus ring. The bar itself is always dark and does not use it. Main thread only.
namespace WindowTheme {

/// Size of ordinary text, in points.
inline constexpr int fontSize = 13;

/// `ask` is called once, before the scheme is needed for the first time; what it learns, then and
/// later, it gives to setColorScheme().
void setSchemeSource(std::function<void()> ask);

/// Sets the scheme of all windows that follow the theme, now and later.
void setColorScheme(ColorScheme scheme);

/// The scheme in force.
ColorScheme colorScheme();

/// Gives `window` and its children the look of the current scheme, for as long as it lives. The
/// application's palette and font are the theme's from the first such window on.
void follow(QWidget& window);

} // namespace WindowTheme
} // namespace velmora

#include "overlay/ScreenManager.h"

#include "platform/Session.h"

namespace velmora {
namespace {

constexpr double kDefaultMenuBarHeight = 24.0;
constexpr double kNotchWidthRatio = 0.3;

} // namespace

ScreenManager& ScreenManager::shared() {
    static auto* const instance = new ScreenManager(Session::current().screens());
    return *instance;
}

std::optional<Screen> ScreenManager::getPrimaryScreen() const {
    return screens_.mainScreen();
}

QMarginsF ScreenManager::getSafeInsets() const {
    const auto screen = getPrimaryScreen();
    return screen ? screen->safeAreaInsets : QMarginsF();
}

double ScreenManager::getMenuBarHeight() const {
    const double top = getSafeInsets().top();
    return top > 0 ? top : kDefaultMenuBarHeight;
}

QRectF ScreenManager::getScreenFrame() const {
    const auto screen = getPrimaryScreen();
    return screen ? screen->frame : QRectF();
}

bool ScreenManager::hasNotch() const {
    return getSafeInsets().top() > 0;
}

QRectF ScreenManager::getNotchBounds() const {
    const auto screen = getPrimaryScreen();
    if (!screen)
        return {};
    const double top = screen->safeAreaInsets.top();
    if (!(top > 0))
        return {};
    const double width = screen->frame.width();
    const double notchWidth = width * kNotchWidthRatio;
    return {(width - notchWidth) * 0.5, screen->frame.height() - top, notchWidth, top};
}

NotchSafeZones ScreenManager::getNotchSafeZones() const {
    const auto screen = getPrimaryScreen();
    if (!screen)
        return {};
    const double width = screen->frame.width();
    if (!(screen->safeAreaInsets.top() > 0))
        return {.left = width, .right = 0};
    const QRectF notch = getNotchBounds();
    return {.left = notch.left(), .right = width - notch.right()};
}

} // namespace velmora

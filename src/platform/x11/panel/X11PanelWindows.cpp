#include "platform/x11/panel/X11PanelWindows.h"

#include <QGuiApplication>
#include <QScreen>
#include <cmath>

namespace velmora {
X11PanelWindows::X11PanelWindows(X11Connection& connection)
    : connection_(connection), screens_(connection) {}

std::unique_ptr<PanelWindow>
X11PanelWindows::create(const QRectF& contentRect, [[maybe_unused]] unsigned styleMask) {
    // Every override-redirect window is a non-activating panel whose content fills it.
    const auto screen = screens_.mainScreen();
    const QScreen* const qtScreen = QGuiApplication::primaryScreen();
    // Qt leaves the place of a screen in pixels.
    return std::make_unique<X11PanelWindow>(
        connection_, panelFrame(
                         contentRect, screen ? screen->frame.height() : 0,
                         qtScreen ? qtScreen->geometry().topLeft() : QPoint(),
                         qtScreen ? qtScreen->devicePixelRatio() : 1));
}

PanelFrame panelFrame(const QRectF& contentRect, double screenHeight, QPoint origin, double ratio) {
    if (contentRect.isEmpty())
        return {};
    const auto pixel = [ratio](double points) {
        return static_cast<int>(std::lround(points * ratio));
    };
    const QPoint topLeft(
        pixel(contentRect.left()), pixel(screenHeight - (contentRect.y() + contentRect.height())));
    const QPoint end(pixel(contentRect.right()), pixel(screenHeight - contentRect.y()));
    // What a quotient leaves is far below a pixel.
    const auto pointBefore = [ratio](int at) {
        return static_cast<int>(std::floor(at / ratio + 0.01));
    };
    const auto pointAfter = [ratio](int at) {
        return static_cast<int>(std::ceil(at / ratio - 0.01));
    };
    const QPoint first(pointBefore(topLeft.x()), pointBefore(topLeft.y()));
    const QPoint last(pointAfter(end.x()), pointAfter(end.y()));
    return {
        .pixels = {origin + topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y())},
        .points = {origin + first, QSize(last.x() - first.x(), last.y() - first.y())}};
}

} // namespace velmora

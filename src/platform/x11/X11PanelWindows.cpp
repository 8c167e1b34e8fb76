#include "platform/x11/X11PanelWindows.h"

#include "platform/x11/X11PanelWindow.h"

#include <QGuiApplication>
#include <QScreen>
#include <cmath>

namespace velmora {
namespace {

/// What rounding in pixel-to-point quotients leaves; far below a pixel.
constexpr double kRounding = 0.01;

int floorToPoint(double value) {
    return static_cast<int>(std::floor(value + kRounding));
}

int ceilToPoint(double value) {
    return static_cast<int>(std::ceil(value - kRounding));
}

} // namespace

X11PanelWindows::X11PanelWindows(X11Connection& connection)
    : connection_(connection), screens_(connection) {}

std::unique_ptr<PanelWindow>
X11PanelWindows::create(const QRectF& contentRect, [[maybe_unused]] unsigned styleMask) {
    // Every override-redirect window is a non-activating panel whose content fills it.
    const auto screen = screens_.mainScreen();
    const QScreen* const qtScreen = QGuiApplication::primaryScreen();
    return std::make_unique<X11PanelWindow>(
        connection_, coveringFrame(
                         contentRect, screen ? screen->frame.height() : 0,
                         qtScreen ? qtScreen->geometry().topLeft() : QPoint()));
}

QRect coveringFrame(const QRectF& contentRect, double screenHeight, QPoint screenOrigin) {
    if (contentRect.isEmpty())
        return {};
    const QPoint topLeft(
        floorToPoint(contentRect.left()),
        floorToPoint(screenHeight - (contentRect.y() + contentRect.height())));
    const QPoint end(ceilToPoint(contentRect.right()), ceilToPoint(screenHeight - contentRect.y()));
    return {screenOrigin + topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y())};
}

} // namespace velmora

#include "platform/x11/panel/X11PanelWindow.h"

#include "platform/x11/base/QtConnection.h"
#include "platform/x11/panel/X11StackKeeper.h"

#include <QApplication>
#include <QScreen>
#include <QVBoxLayout>
#include <cmath>
#include <xcb/shape.h>

using namespace Qt::StringLiterals;

namespace velmora {

X11PanelWindow::X11PanelWindow(X11Connection& connection, const PanelFrame& frame)
    : extent_(frame.pixels) {
    window_.setWindowFlags(
        Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
        Qt::WindowDoesNotAcceptFocus | Qt::X11BypassWindowManagerHint | Qt::NoDropShadowWindowHint);
    window_.setWindowTitle(u"Velmora"_s); // for programs that list windows
    window_.setAttribute(Qt::WA_ShowWithoutActivating);
    window_.setAttribute(Qt::WA_TranslucentBackground);
    QPalette palette = window_.palette();
    palette.setColor(QPalette::Window, Qt::transparent);
    window_.setPalette(palette);
    window_.setGeometry(frame.points);
    auto* const layout = new QVBoxLayout(&window_);
    layout->setContentsMargins({});
    // The frame is fixed: content that wants more room does not get it.
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    if (frame.points.isEmpty())
        return;
    qApp->installNativeEventFilter(this);
    applyExtent();
    window_.show();
    window_.raise();
    syncQtConnection();
    stackKeeper_ =
        std::make_unique<X11StackKeeper>(connection, static_cast<xcb_window_t>(window_.winId()));
}

X11PanelWindow::~X11PanelWindow() = default;

void X11PanelWindow::setPresented(bool presented) {
    isPresented_ = presented;
    if (!stackKeeper_)
        return;
    applyShapes();
    if (isPresented_)
        stackKeeper_->raiseNow();
}

void X11PanelWindow::setContentView(QWidget* view) {
    window_.layout()->addWidget(view);
    // At once, so that the first thing painted is the content in its place.
    window_.layout()->activate();
    view->show();
}

bool X11PanelWindow::nativeEventFilter(const QByteArray&, void* message, qintptr*) {
    const auto& event = *static_cast<const xcb_generic_event_t*>(message);
    return (event.response_type & ~0x80) == XCB_CONFIGURE_NOTIFY &&
           reinterpret_cast<const xcb_configure_notify_event_t&>(event).window ==
               window_.internalWinId();
}

void X11PanelWindow::applyExtent() {
    const std::uint32_t values[] = {
        static_cast<std::uint32_t>(extent_.x()), static_cast<std::uint32_t>(extent_.y()),
        static_cast<std::uint32_t>(extent_.width()), static_cast<std::uint32_t>(extent_.height())};
    xcb_configure_window(
        qtConnection(), static_cast<xcb_window_t>(window_.winId()),
        XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
            XCB_CONFIG_WINDOW_HEIGHT,
        values);
}

void X11PanelWindow::applyShapes() {
    const auto window = static_cast<xcb_window_t>(window_.winId());
    for (const xcb_shape_kind_t kind : {XCB_SHAPE_SK_BOUNDING, XCB_SHAPE_SK_INPUT}) {
        if (isPresented_)
            xcb_shape_mask(qtConnection(), XCB_SHAPE_SO_SET, kind, window, 0, 0, XCB_NONE);
        else
            xcb_shape_rectangles(
                qtConnection(), XCB_SHAPE_SO_SET, kind, XCB_CLIP_ORDERING_UNSORTED, window, 0, 0, 0,
                nullptr);
    }
    xcb_flush(qtConnection());
}

X11PanelWindows::X11PanelWindows(X11Connection& connection)
    : connection_(connection), screens_(connection) {}

std::unique_ptr<PanelWindow> X11PanelWindows::create(const QRectF& contentRect) {
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

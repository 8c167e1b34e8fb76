#include "platform/x11/panel/X11Panel.h"

#include "platform/x11/base/QtConnection.h"
#include "platform/x11/panel/PanelPlacement.h"
#include "platform/x11/panel/X11Docks.h"
#include "platform/x11/panel/X11StackKeeper.h"
#include "platform/x11/panel/X11StripReservation.h"
#include "platform/x11/screens/X11Screens.h"

#include <QApplication>
#include <QVBoxLayout>
#include <cmath>
#include <xcb/shape.h>

using namespace Qt::StringLiterals;

namespace velmora {

X11Panel::X11Panel(
    X11Connection& connection, const X11Screens& screens, std::unique_ptr<QWidget> view)
    : connection_(connection), screens_(screens) {
    window_.setWindowFlags(
        Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
        Qt::WindowDoesNotAcceptFocus | Qt::X11BypassWindowManagerHint | Qt::NoDropShadowWindowHint);
    window_.setWindowTitle(u"Velmora"_s); // for programs that list windows
    window_.setAttribute(Qt::WA_ShowWithoutActivating);
    window_.setAttribute(Qt::WA_TranslucentBackground);
    QPalette palette = window_.palette();
    palette.setColor(QPalette::Window, Qt::transparent);
    window_.setPalette(palette);
    auto* const layout = new QVBoxLayout(&window_);
    layout->setContentsMargins({});
    // The extent is asked for: content that wants more room does not get it.
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->addWidget(view.release());
    qApp->installNativeEventFilter(this);
    QObject::connect(&screens, &Screens::changed, &window_, [this] { place(); });
}

X11Panel::~X11Panel() = default;

void X11Panel::request(const PanelRequest& request) {
    const std::optional<PanelRequest> before = std::exchange(request_, request);
    if (!before || before->height != request.height || before->belowDocks != request.belowDocks)
        place();
    else
        present();
    if (request.presented && stackKeeper_)
        stackKeeper_->raiseNow();
}

void X11Panel::place() {
    if (!request_)
        return;
    if (!request_->belowDocks)
        docks_.reset();
    else if (!docks_)
        docks_ = std::make_unique<X11Docks>(connection_, [this] { place(); });
    const auto screen = screens_.primary();
    extent_ = {};
    if (screen) {
        const int height = static_cast<int>(std::lround(request_->height * screen->ratio));
        extent_ = panelPlace(screen->pixels, height, docks_ ? docks_->struts() : QList<TopStrut>());
    }
    if (!extent_.isEmpty()) {
        window_.setGeometry(panelPoints(extent_, screen->pixels.topLeft(), screen->ratio));
        // At once, so that the first thing painted is the content in its place.
        window_.layout()->activate();
        applyExtent();
        window_.show();
        keepAbove();
    }
    present();
}

void X11Panel::present() {
    applyShapes();
    reserve();
}

void X11Panel::reserve() {
    const bool wanted = request_->reservesStrip && isSeen();
    const QRect place = wanted ? extent_ : QRect();
    if (std::exchange(reserved_, place) == place)
        return;
    const auto strut = wanted ? panelStrut(place, X11Screens::all()) : std::nullopt;
    // The new one first: windows would grow for a moment.
    reservation_ =
        strut ? std::make_unique<X11StripReservation>(connection_, place, *strut) : nullptr;
}

bool X11Panel::isSeen() const {
    return request_->presented && !extent_.isEmpty();
}

void X11Panel::keepAbove() {
    // Qt makes another window where the one before was on a screen that has gone.
    if (std::exchange(keptWindow_, window_.winId()) == window_.winId())
        return;
    window_.raise();
    syncQtConnection();
    stackKeeper_ =
        std::make_unique<X11StackKeeper>(connection_, static_cast<xcb_window_t>(keptWindow_));
}

bool X11Panel::nativeEventFilter(const QByteArray&, void* message, qintptr*) {
    const auto& event = *static_cast<const xcb_generic_event_t*>(message);
    return (event.response_type & ~0x80) == XCB_CONFIGURE_NOTIFY &&
           reinterpret_cast<const xcb_configure_notify_event_t&>(event).window ==
               window_.internalWinId();
}

void X11Panel::applyExtent() {
    const std::uint32_t values[] = {
        static_cast<std::uint32_t>(extent_.x()), static_cast<std::uint32_t>(extent_.y()),
        static_cast<std::uint32_t>(extent_.width()), static_cast<std::uint32_t>(extent_.height())};
    xcb_configure_window(
        qtConnection(), static_cast<xcb_window_t>(window_.winId()),
        XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
            XCB_CONFIG_WINDOW_HEIGHT,
        values);
}

void X11Panel::applyShapes() {
    if (!window_.isVisible())
        return;
    const auto window = static_cast<xcb_window_t>(window_.winId());
    for (const xcb_shape_kind_t kind : {XCB_SHAPE_SK_BOUNDING, XCB_SHAPE_SK_INPUT}) {
        if (isSeen())
            xcb_shape_mask(qtConnection(), XCB_SHAPE_SO_SET, kind, window, 0, 0, XCB_NONE);
        else
            xcb_shape_rectangles(
                qtConnection(), XCB_SHAPE_SO_SET, kind, XCB_CLIP_ORDERING_UNSORTED, window, 0, 0, 0,
                nullptr);
    }
    xcb_flush(qtConnection());
}

std::unique_ptr<Panel> X11Panels::create(std::unique_ptr<QWidget> view) {
    return std::make_unique<X11Panel>(connection_, screens_, std::move(view));
}

} // namespace velmora

#include "platform/x11/session/X11WindowActivation.h"

#include "platform/x11/base/QtConnection.h"
#include "platform/x11/base/WindowQueries.h"

#include <QApplication>
#include <algorithm>

namespace velmora {
namespace {

/// The property whose change tells the server's time.
constexpr char kTimeProperty[] = "_VELMORA_SERVER_TIME";

/// The request comes from the user rather than from the program's own mind: window managers that
/// prevent focus stealing grant it.
constexpr std::uint32_t kDirectUserAction = 2;

/// Whether `dialog` belongs to that window, or to a dialog of it.
bool isOwnerOf(xcb_window_t window, const QWidget& dialog) {
    const QWidget* owner = dialog.parentWidget();
    while (owner && owner->internalWinId() != window)
        owner = owner->parentWidget();
    return owner;
}

} // namespace

X11WindowActivation::X11WindowActivation(X11Connection& connection)
    : connection_(connection),
      subscription_(
          connection.subscribe([this](const xcb_generic_event_t& event) { handle(event); })) {}

void X11WindowActivation::makeKeyAndOrderFront(QWidget& window) {
    qApp->installNativeEventFilter(this); // no matter how often
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    syncQtConnection();
    widget_ = &window;
    window_ = static_cast<xcb_window_t>(window.winId());
    alsoSelectEvents(
        connection_, window_,
        static_cast<xcb_event_mask_t>(
            XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY));
    askServerTime();
}

bool X11WindowActivation::nativeEventFilter(const QByteArray&, void* message, qintptr*) {
    const auto& event = *static_cast<const xcb_generic_event_t*>(message);
    if ((event.response_type & ~0x80) != XCB_FOCUS_IN)
        return false;
    const auto& focus = *static_cast<const xcb_focus_in_event_t*>(message);
    const bool hasMoved =
        focus.mode == XCB_NOTIFY_MODE_NORMAL || focus.mode == XCB_NOTIFY_MODE_WHILE_GRABBED;
    QWidget* dialog = QApplication::activeModalWidget();
    if (hasMoved && dialog && isOwnerOf(focus.event, *dialog))
        makeKeyAndOrderFront(*dialog);
    return false;
}

void X11WindowActivation::handle(const xcb_generic_event_t& event) {
    if (!widget_)
        return;
    const auto type = event.response_type & ~0x80;
    if (type == XCB_MAP_NOTIFY) {
        const auto& mapped = reinterpret_cast<const xcb_map_notify_event_t&>(event);
        if (mapped.window == window_)
            askServerTime();
    } else if (type == XCB_PROPERTY_NOTIFY) {
        const auto& changed = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (changed.window == window_ && (changed.atom == connection_.atom(kTimeProperty) ||
                                          changed.atom == connection_.atom("WM_STATE")))
            activateWhenReady(changed.time);
    }
}

void X11WindowActivation::askServerTime() {
    // Appends nothing; the server announces the change with its time all the same.
    const auto cookie = xcb_change_property_checked(
        connection_, XCB_PROP_MODE_APPEND, window_, connection_.atom(kTimeProperty),
        XCB_ATOM_CARDINAL, 32, 0, nullptr);
    xcb_discard_reply(connection_, cookie.sequence); // the window may be closed by now
    xcb_flush(connection_);
}

void X11WindowActivation::activateWhenReady(xcb_timestamp_t time) {
    if (windowManagerActivates()) {
        if (!isManaged())
            return;
        requestActivation(time);
    } else {
        if (!isViewable())
            return;
        xcb_set_input_focus(connection_, XCB_INPUT_FOCUS_PARENT, window_, time);
    }
    xcb_flush(connection_);
    widget_ = nullptr;
}

bool X11WindowActivation::windowManagerActivates() const {
    // The property may outlive the window manager that left it; the redirection does not.
    const XcbOwned<xcb_get_window_attributes_reply_t> root(xcb_get_window_attributes_reply(
        connection_, xcb_get_window_attributes(connection_, connection_.root()), nullptr));
    if (!root || !(root->all_event_masks & XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT))
        return false;
    const auto supported =
        readProperty(connection_, connection_.root(), "_NET_SUPPORTED", XCB_ATOM_ATOM);
    return std::find(supported.begin(), supported.end(), connection_.atom("_NET_ACTIVE_WINDOW")) !=
           supported.end();
}

bool X11WindowActivation::isManaged() const {
    constexpr std::uint32_t withdrawn = 0;
    const auto state = readProperty(connection_, window_, "WM_STATE", connection_.atom("WM_STATE"));
    return !state.empty() && state.front() != withdrawn;
}

bool X11WindowActivation::isViewable() const {
    const XcbOwned<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
        connection_, xcb_get_window_attributes(connection_, window_), nullptr));
    return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
}

void X11WindowActivation::requestActivation(xcb_timestamp_t time) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window_;
    message.type = connection_.atom("_NET_ACTIVE_WINDOW");
    message.data.data32[0] = kDirectUserAction;
    message.data.data32[1] = time;
    xcb_send_event(
        connection_, false, connection_.root(),
        XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
        reinterpret_cast<const char*>(&message));
}

} // namespace velmora

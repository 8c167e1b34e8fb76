#include "platform/x11/session/X11SingleInstance.h"

#include <QDeadlineTimer>
#include <poll.h>

namespace velmora {
namespace {

constexpr char kSelection[] = "_VELMORA_INSTANCE";
constexpr char kComeForward[] = "_VELMORA_COME_FORWARD";
constexpr char kMakesRoom[] = "_VELMORA_MAKES_ROOM";

/// How long a launch waits for an instance that makes room. Ending takes a few milliseconds.
constexpr int maximumWait = 5000;

/// Between these no other client's request is carried out, and no other client ends for the server.
class ServerGrab {
public:
    explicit ServerGrab(X11Connection& connection) : connection_(connection) {
        xcb_grab_server(connection_);
    }
    ~ServerGrab() {
        xcb_ungrab_server(connection_);
        xcb_flush(connection_);
    }
    ServerGrab(const ServerGrab&) = delete;
    ServerGrab& operator=(const ServerGrab&) = delete;

private:
    X11Connection& connection_;
};

/// Returns when the server has carried out all requests so far. One that closes its connection
/// earlier can lose what it sent last.
void awaitServer(X11Connection& connection) {
    const XcbOwned<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

bool makesRoom(X11Connection& connection, xcb_window_t window) {
    const auto cookie = xcb_get_property(
        connection, false, window, connection.atom(kMakesRoom), XCB_ATOM_CARDINAL, 0, 0);
    const XcbOwned<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection, cookie, nullptr));
    return reply && reply->type != XCB_ATOM_NONE;
}

void askToComeForward(X11Connection& connection, xcb_window_t window) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = connection.atom(kComeForward);
    // To the client that made the window.
    xcb_send_event(
        connection, false, window, XCB_EVENT_MASK_NO_EVENT,
        reinterpret_cast<const char*>(&message));
    awaitServer(connection);
}

/// Waits for the end of `window`, whose structure events are selected; false after `deadline`.
bool waitForEnd(X11Connection& connection, xcb_window_t window, const QDeadlineTimer& deadline) {
    while (!deadline.hasExpired() && !xcb_connection_has_error(connection)) {
        while (const XcbOwned<xcb_generic_event_t> event{xcb_poll_for_event(connection)}) {
            const auto& destroyed = reinterpret_cast<const xcb_destroy_notify_event_t&>(*event);
            if ((event->response_type & ~0x80) == XCB_DESTROY_NOTIFY && destroyed.window == window)
                return true;
        }
        pollfd descriptor{xcb_get_file_descriptor(connection), POLLIN, 0};
        ::poll(&descriptor, 1, static_cast<int>(deadline.remainingTime()));
    }
    return false;
}

} // namespace

X11SingleInstance::X11SingleInstance(X11Connection& connection)
    : connection_(connection),
      subscription_(
          connection.subscribe([this](const xcb_generic_event_t& event) { handle(event); })) {}

bool X11SingleInstance::claim() {
    const xcb_atom_t selection = connection_.atom(kSelection);
    window_ = connection_.makeHiddenWindow();
    QDeadlineTimer deadline(maximumWait);
    for (;;) {
        xcb_window_t owner = XCB_WINDOW_NONE;
        {
            // Looking and taking are one step: of two launches at the same moment one finds the
            // other, and an owner that was found is still there to be asked.
            const ServerGrab grab(connection_);
            const XcbOwned<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
                connection_, xcb_get_selection_owner(connection_, selection), nullptr));
            if (reply)
                owner = reply->owner;
            if (owner == XCB_WINDOW_NONE || deadline.hasExpired()) {
                xcb_set_selection_owner(connection_, window_, selection, XCB_CURRENT_TIME);
                return true;
            }
            if (!makesRoom(connection_, owner)) {
                askToComeForward(connection_, owner);
                return false;
            }
            const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
            xcb_change_window_attributes(connection_, owner, XCB_CW_EVENT_MASK, &mask);
        }
        waitForEnd(connection_, owner, deadline);
    }
}

void X11SingleInstance::setComeForwardHandler(std::function<void()> handler) {
    handler_ = std::move(handler);
    if (std::exchange(isAsked_, false))
        handler_();
}

void X11SingleInstance::makeRoom() {
    xcb_change_property(
        connection_, XCB_PROP_MODE_REPLACE, window_, connection_.atom(kMakesRoom),
        XCB_ATOM_CARDINAL, 32, 0, nullptr);
    // In force before the next launch looks.
    awaitServer(connection_);
}

void X11SingleInstance::handle(const xcb_generic_event_t& event) {
    if ((event.response_type & ~0x80) != XCB_CLIENT_MESSAGE)
        return;
    const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
    if (message.window != window_ || message.type != connection_.atom(kComeForward))
        return;
    if (handler_)
        handler_();
    else
        isAsked_ = true;
}

} // namespace velmora

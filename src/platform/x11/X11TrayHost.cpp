#include "platform/x11/X11TrayHost.h"

#include "platform/x11/WindowQueries.h"

namespace velmora {
namespace {

int screenNumber(X11Connection& connection) {
    int number = 0;
    for (auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
         screens.rem > 0 && screens.data->root != connection.root(); xcb_screen_next(&screens))
        ++number;
    return number;
}

} // namespace

void X11TrayHost::observe(std::function<void(bool isThere)> handler) {
    handler_ = std::move(handler);
    selection_ =
        connection_.atom("_NET_SYSTEM_TRAY_S" + QByteArray::number(screenNumber(connection_)));
    subscription_ =
        connection_.subscribe([this](const xcb_generic_event_t& event) { handle(event); });
    // A new owner announces itself there.
    alsoSelectEvents(connection_, connection_.root(), XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    findTray();
}

void X11TrayHost::handle(const xcb_generic_event_t& event) {
    const auto type = event.response_type & ~0x80;
    if (type == XCB_CLIENT_MESSAGE) {
        const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
        if (message.type == connection_.atom("MANAGER") && message.data.data32[1] == selection_)
            findTray();
    } else if (type == XCB_DESTROY_NOTIFY && tray_ != XCB_WINDOW_NONE) {
        if (reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == tray_)
            findTray();
    }
}

void X11TrayHost::findTray() {
    const xcb_window_t before = tray_;
    tray_ = selectionOwner();
    // It may go before its events are selected, and then nothing would tell: look again after.
    for (xcb_window_t watched = XCB_WINDOW_NONE; tray_ != watched; tray_ = selectionOwner()) {
        watched = tray_;
        if (watched != XCB_WINDOW_NONE)
            alsoSelectEvents(connection_, watched, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    }
    if (tray_ != before)
        handler_(tray_ != XCB_WINDOW_NONE);
}

xcb_window_t X11TrayHost::selectionOwner() {
    const XcbOwned<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        connection_, xcb_get_selection_owner(connection_, selection_), nullptr));
    return reply ? reply->owner : xcb_window_t(XCB_WINDOW_NONE);
}

} // namespace velmora

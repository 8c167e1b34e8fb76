#include "platform/x11/base/WindowQueries.h"

#include "platform/x11/base/X11Connection.h"

namespace velmora {

std::vector<std::uint32_t> readProperty(
    X11Connection& connection, xcb_window_t window, const QByteArray& name, xcb_atom_t type) {
    constexpr std::uint32_t maximumLength = 1024;
    const auto cookie =
        xcb_get_property(connection, false, window, connection.atom(name), type, 0, maximumLength);
    const XcbOwned<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection, cookie, nullptr));
    if (!reply || reply->type != type || reply->format != 32)
        return {};
    const auto* const first =
        static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

void alsoSelectEvents(X11Connection& connection, xcb_window_t window, xcb_event_mask_t events) {
    const XcbOwned<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
        connection, xcb_get_window_attributes(connection, window), nullptr));
    const std::uint32_t mask =
        (attributes ? attributes->your_event_mask : 0) | static_cast<std::uint32_t>(events);
    const auto cookie =
        xcb_change_window_attributes_checked(connection, window, XCB_CW_EVENT_MASK, &mask);
    xcb_discard_reply(connection, cookie.sequence);
    xcb_flush(connection);
}

} // namespace velmora

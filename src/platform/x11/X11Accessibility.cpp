#include "platform/x11/X11Accessibility.h"

#include "platform/x11/X11Connection.h"

#include <cstdint>
#include <xcb/xinput.h>

namespace velmora {
namespace {

bool serverOffers(X11Connection& connection, const QByteArray& extension) {
    const auto cookie = xcb_query_extension(
        connection, static_cast<std::uint16_t>(extension.size()), extension.constData());
    const XcbOwned<xcb_query_extension_reply_t> reply(
        xcb_query_extension_reply(connection, cookie, nullptr));
    return reply && reply->present;
}

bool offersXInput2(X11Connection& connection) {
    const QByteArray name = "XInputExtension";
    if (!serverOffers(connection, name))
        return false;
    // Asks for the server's version without settling this client's, unlike XIQueryVersion.
    const auto cookie = xcb_input_get_extension_version(
        connection, static_cast<std::uint16_t>(name.size()), name.constData());
    const XcbOwned<xcb_input_get_extension_version_reply_t> version(
        xcb_input_get_extension_version_reply(connection, cookie, nullptr));
    return version && version->server_major >= 2;
}

} // namespace

X11Accessibility::X11Accessibility(X11Connection& connection)
    : trusted_(
          serverOffers(connection, "XTEST") && serverOffers(connection, "XKEYBOARD") &&
          offersXInput2(connection) &&
          !isWaylandSession(
              serverOffers(connection, "XWAYLAND"), qgetenv("XDG_SESSION_TYPE"),
              qgetenv("WAYLAND_DISPLAY"))) {}

bool isWaylandSession(
    bool serverIsXwayland, const QByteArray& sessionType, const QByteArray& waylandDisplay) {
    if (serverIsXwayland || sessionType == "wayland")
        return true;
    return sessionType != "x11" && !waylandDisplay.isEmpty();
}

} // namespace velmora

#include "platform/x11/session/X11Accessibility.h"

#include "platform/x11/base/X11Connection.h"
#include "platform/x11/base/Xcb.h"

#include <cstdint>
#include <xcb/xinput.h>
#include <xcb/xtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

bool offersXInput2(X11Connection& connection) {
    if (!findExtension(connection, xcb_input_id))
        return false;
    // Asks for the server's version without settling this client's, unlike XIQueryVersion.
    const QByteArray name = "XInputExtension";
    const auto cookie = xcb_input_get_extension_version(
        connection, static_cast<std::uint16_t>(name.size()), name.constData());
    const XcbOwned<xcb_input_get_extension_version_reply_t> version(
        xcb_input_get_extension_version_reply(connection, cookie, nullptr));
    return version && version->server_major >= 2;
}

bool isXwayland(X11Connection& connection) {
    const QByteArray name = "XWAYLAND";
    const XcbOwned<xcb_query_extension_reply_t> reply(xcb_query_extension_reply(
        connection,
        xcb_query_extension(connection, static_cast<std::uint16_t>(name.size()), name.constData()),
        nullptr));
    return reply && reply->present;
}

} // namespace

X11Accessibility::X11Accessibility(X11Connection& connection)
    : isWayland_(isWaylandSession(
          isXwayland(connection), qgetenv("XDG_SESSION_TYPE"), qgetenv("WAYLAND_DISPLAY"))) {
    if (!findExtension(connection, xcb_test_id))
        missing_.append(u"XTEST"_s);
    if (!findExtension(connection, xcb_xkb_id))
        missing_.append(u"XKEYBOARD"_s);
    if (!offersXInput2(connection))
        missing_.append(u"XInputExtension 2"_s);
}

bool isWaylandSession(
    bool serverIsXwayland, const QByteArray& sessionType, const QByteArray& waylandDisplay) {
    if (serverIsXwayland || sessionType == "wayland")
        return true;
    return sessionType != "x11" && !waylandDisplay.isEmpty();
}

} // namespace velmora

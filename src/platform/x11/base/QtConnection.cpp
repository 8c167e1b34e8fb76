#include "platform/x11/base/QtConnection.h"

#include "platform/x11/base/X11Connection.h"

#include <QGuiApplication>

namespace velmora {

xcb_connection_t* qtConnection() {
    return qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
}

void syncQtConnection() {
    xcb_connection_t* const qt = qtConnection();
    const XcbOwned<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(qt, xcb_get_input_focus(qt), nullptr));
}

} // namespace velmora

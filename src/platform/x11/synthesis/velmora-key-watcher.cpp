// Lets go of the keys that a Velmora which is no more has left down.
//
//   velmora-key-watcher WINDOW
//
// WINDOW (decimal) belongs to the Velmora to watch; its end is that of Velmora.

#include "platform/x11/base/Xcb.h"
#include "platform/x11/synthesis/AbandonedKeys.h"

#include <cstdlib>

using namespace velmora;

namespace {

/// Returns when `window` has been destroyed, or the server is gone.
void waitForEnd(xcb_connection_t* connection, xcb_window_t window) {
    const uint32_t structure = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    const XcbOwned<xcb_generic_error_t> destroyedBefore(xcb_request_check(
        connection,
        xcb_change_window_attributes_checked(connection, window, XCB_CW_EVENT_MASK, &structure)));
    if (destroyedBefore)
        return;
    // Other events come now and then: every client hears of a new keyboard map.
    while (const XcbOwned<xcb_generic_event_t> event{xcb_wait_for_event(connection)}) {
        if ((event->response_type & 0x7f) == XCB_DESTROY_NOTIFY)
            return;
    }
}

} // namespace

int main(int argc, char** argv) {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    if (argc != 2 || xcb_connection_has_error(connection))
        return EXIT_FAILURE;
    waitForEnd(connection, static_cast<xcb_window_t>(std::strtoul(argv[1], nullptr, 10)));
    releaseAbandonedKeys(connection);
    xcb_disconnect(connection);
}

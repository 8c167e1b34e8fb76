#include "platform/x11/synthesis/AbandonedKeys.h"

#include "platform/x11/base/Xcb.h"

#include <span>
#include <xcb/xtest.h>

namespace velmora {

void releaseAbandonedKeys(xcb_connection_t* connection) {
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const XcbOwned<xcb_intern_atom_reply_t> property(xcb_intern_atom_reply(
        connection,
        xcb_intern_atom(connection, false, sizeof pressedKeysProperty - 1, pressedKeysProperty),
        nullptr));
    if (!property)
        return;
    const XcbOwned<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        connection,
        xcb_get_property(connection, true, root, property->atom, XCB_ATOM_CARDINAL, 0, 8),
        nullptr));
    if (!reply || reply->format != 8 || reply->value_len == 0)
        return;
    const std::span keycodes(
        static_cast<const xcb_keycode_t*>(xcb_get_property_value(reply.get())), reply->value_len);
    for (const xcb_keycode_t keycode : keycodes)
        xcb_test_fake_input(
            connection, XCB_KEY_RELEASE, keycode, XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0, 0);
    const XcbOwned<xcb_get_input_focus_reply_t> done(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

} // namespace velmora

#include "platform/x11/synthesis/SyntheticKeys.h"

#include <xcb/xinput.h>
#include <xcb/xtest.h>

namespace velmora::SyntheticKeys {
namespace {

/// Device 0 is the keyboard that XTEST types on by default.
unsigned send(xcb_connection_t* connection, int type, xcb_keycode_t keycode, uint8_t device = 0) {
    return xcb_test_fake_input(
               connection, static_cast<uint8_t>(type), keycode, XCB_CURRENT_TIME, XCB_WINDOW_NONE,
               0, 0, device)
        .sequence;
}

} // namespace

void press(xcb_connection_t* connection, xcb_keycode_t keycode) {
    send(connection, XCB_KEY_PRESS, keycode);
}

void release(xcb_connection_t* connection, xcb_keycode_t keycode) {
    send(connection, XCB_KEY_RELEASE, keycode);
}

unsigned
pressOn(xcb_connection_t* connection, uint8_t inputEvents, uint8_t device, xcb_keycode_t keycode) {
    return send(connection, inputEvents + XCB_INPUT_DEVICE_KEY_PRESS, keycode, device);
}

unsigned releaseOn(
    xcb_connection_t* connection, uint8_t inputEvents, uint8_t device, xcb_keycode_t keycode) {
    return send(connection, inputEvents + XCB_INPUT_DEVICE_KEY_RELEASE, keycode, device);
}

} // namespace velmora::SyntheticKeys

#pragma once

#include <cstdint>
#include <xcb/xcb.h>

/// Keys pressed and let go in the user's place. Requests only, nothing is waited for.
namespace velmora::SyntheticKeys {

/// A press or a release on the keyboard that XTEST types on. The session's keyboard follows it
/// whatever other keyboards report: a release lets go of a key that the user holds, too.
void press(xcb_connection_t* connection, xcb_keycode_t keycode);
void release(xcb_connection_t* connection, xcb_keycode_t keycode);

/// The same on a certain device, as if it came from there. `inputEvents` is the XInput extension's
/// first event. Each gives the number of its request.
unsigned
pressOn(xcb_connection_t* connection, uint8_t inputEvents, uint8_t device, xcb_keycode_t keycode);
unsigned
releaseOn(xcb_connection_t* connection, uint8_t inputEvents, uint8_t device, xcb_keycode_t keycode);

} // namespace velmora::SyntheticKeys

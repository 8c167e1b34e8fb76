#pragma once

#include <span>
#include <xcb/xcb.h>

/// Keys pressed and let go in the user's place.
namespace velmora::SyntheticKeys {

/// A press or a release on the keyboard that XTEST types on. The session's keyboard follows it
/// whatever other keyboards report: a release lets go of a key that the user holds, too.
void press(xcb_connection_t* connection, xcb_keycode_t keycode);
void release(xcb_connection_t* connection, xcb_keycode_t keycode);

/// Makes the session believe again in those of `keycodes` that a real keyboard still reports down,
/// after they were let go in the user's place. A key that the user has let go meanwhile stays up.
/// Waits for the server's answers.
void pressAgainIfHeld(xcb_connection_t* connection, std::span<const xcb_keycode_t> keycodes);

} // namespace velmora::SyntheticKeys

#pragma once

#include <xcb/xcb.h>

namespace velmora {

/// On the root window while keys are pressed in the user's place: their keycodes. A process killed
/// between press and release leaves it behind.
inline constexpr char pressedKeysProperty[] = "_VELMORA_PRESSED_KEYS";

/// Lets go of the keys that pressedKeysProperty names, and removes it: of two that try at a time
/// only one does so. Returns when the server has done it.
void releaseAbandonedKeys(xcb_connection_t* connection);

} // namespace velmora

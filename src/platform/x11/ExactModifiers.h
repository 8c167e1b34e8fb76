#pragma once

#include <cstdint>
#include <span>
#include <xcb/xcb.h>

namespace velmora {

/// While this lives, the keys sent through XTEST carry exactly certain modifiers: the modifier keys
/// that are down are let go, the rest is set through XKB's locked modifiers, which no application
/// sees as keys. Afterwards the locks are as before (the group never changes). Keys let go are not
/// pressed again here: see pressAgainIfHeld(). Requests only, nothing is waited for.
class ExactModifiers {
public:
    /// `mask` are the modifiers to have, `lockedBefore` the locks to restore and `held` the
    /// modifier keys that are down.
    ExactModifiers(
        xcb_connection_t* connection, uint8_t mask, uint8_t lockedBefore,
        std::span<const xcb_keycode_t> held);
    ~ExactModifiers();
    ExactModifiers(const ExactModifiers&) = delete;
    ExactModifiers& operator=(const ExactModifiers&) = delete;

private:
    xcb_connection_t* connection_;
    uint8_t lockedBefore_;
};

} // namespace velmora

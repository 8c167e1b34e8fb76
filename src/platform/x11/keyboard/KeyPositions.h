#pragma once

#include "platform/EventFlags.h"

#include <QByteArray>
#include <array>
#include <optional>
#include <xcb/xcb.h>

namespace velmora {

/// Which keycode of this keyboard sits at which position of the ANSI keyboard, whatever the layout
/// types there.
class KeyPositions {
public:
    /// Empty: no key is known.
    KeyPositions() = default;

    /// Asks the server how the core keyboard names its keys; needs the XKB extension in use on
    /// `connection`. Empty when that fails.
    static KeyPositions read(xcb_connection_t* connection);

    /// The keycode at the position `keyCode`, or nothing when this keyboard has no such key.
    std::optional<xcb_keycode_t> keycode(KeyCode keyCode) const;

    /// The position of `keycode`, or nothing when it is none of the known ones.
    std::optional<KeyCode> position(xcb_keycode_t keycode) const;

    /// Notes that the key which XKB calls `name` ("AC01" is the A position) sends `keycode`. A name
    /// of no known position, or noted before, changes nothing.
    void add(const QByteArray& name, xcb_keycode_t keycode);

private:
    /// Indexed by position, all known ones being below 128; 0 is no keycode.
    std::array<xcb_keycode_t, 128> keycodes_{};
};

} // namespace velmora

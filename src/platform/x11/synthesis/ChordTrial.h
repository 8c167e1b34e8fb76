#pragma once

#include <cstdint>
#include <xcb/xcb.h>
#include <xcb/xinput.h>

namespace velmora {

/// Finds out whether another client (a window manager above all) has a key combination for itself,
/// by trying to grab it. Tried on a connection that grabs no keys for other ends: so a combination
/// of our own counts too.
class ChordTrial {
public:
    /// The connection uses XInput 2.
    explicit ChordTrial(xcb_connection_t* connection);

    /// An answer on its way.
    struct Question {
        xcb_void_cookie_t coreGrab;
        xcb_input_xi_passive_grab_device_cookie_t inputGrab;
    };

    /// Asks about a key with modifiers; does not wait, so that other answers come with it. What was
    /// tried is let go of again.
    Question ask(xcb_keycode_t keycode, uint8_t mask) const;

    /// Waits for the answer: whether the combination is taken.
    bool isTaken(const Question& question) const;

private:
    xcb_connection_t* connection_;
    xcb_window_t root_;
};

} // namespace velmora

#pragma once

#include "platform/x11/X11Connection.h"

#include <memory>

namespace velmora {

/// Finds out whether another client (a window manager above all) has a key combination for itself,
/// by trying to grab it. On a connection of its own, so that a combination of ours counts too.
class ChordTrial {
public:
    /// Nothing when the display takes no more clients.
    static std::unique_ptr<ChordTrial> open();

    /// An answer on its way.
    struct Question {
        xcb_void_cookie_t coreGrab;
        unsigned inputGrab;
        xcb_get_input_focus_cookie_t letGo; ///< answered when nothing is grabbed any more
    };

    /// Asks about a key with modifiers; does not wait, so that other answers come with it.
    Question ask(xcb_keycode_t keycode, uint8_t mask);

    /// Waits for the answer: whether the combination is taken. Of what was tried nothing is held
    /// then.
    bool isTaken(const Question& question);

private:
    explicit ChordTrial(std::unique_ptr<X11Connection> connection);

    std::unique_ptr<X11Connection> connection_;
    bool hasInput_;
};

} // namespace velmora

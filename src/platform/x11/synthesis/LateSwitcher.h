#pragma once

#include "platform/x11/base/X11Connection.h"

#include <QTimer>
#include <functional>
#include <vector>

namespace velmora {

/// A window manager answers Alt+Tab with a switcher that holds the keyboard until the modifier is
/// let go. One that is slow to answer does so after that has happened, and would hold the keyboard
/// for ever. This lets go of the modifiers once more then.
class LateSwitcher {
public:
    explicit LateSwitcher(X11Connection& connection);
    ~LateSwitcher();
    LateSwitcher(const LateSwitcher&) = delete;
    LateSwitcher& operator=(const LateSwitcher&) = delete;

    /// An answer on its way.
    struct Question {
        xcb_grab_keyboard_cookie_t grab;
        xcb_query_keymap_cookie_t keymap;
    };
    /// Asks, without side effect, whether another client holds the keyboard at this point of the
    /// connection's requests, and which keys are down.
    Question ask();

    /// Waits for the answer to what was asked when `keycode` had been let go: whether a switcher is
    /// there and sees the modifiers go. A keyboard frozen by a synchronous grab shows the key as
    /// down: then the grab says nothing.
    bool willSeeRelease(const Question& question, xcb_keycode_t keycode);

    /// Watches for a client that takes the keyboard although no key is down, and then taps
    /// `modifiers`, with the key `inert` (0 for none) inside: a modifier tapped alone means
    /// something of its own to some window managers. Only if `isTaken` then says that the
    /// combination belongs to another client: others may take the keyboard, too. Goes on until half
    /// a second after the window manager has shown that it got as far, and gives up on one that
    /// stands still for long.
    void
    watch(std::vector<xcb_keycode_t> modifiers, xcb_keycode_t inert, std::function<bool()> isTaken);

private:
    /// Whether the keyboard is held although no key is down; waits for the answer.
    bool isHeldWithoutKeys();
    void askManagerToAnswer();
    void check();
    void tap();

    X11Connection& connection_;
    xcb_window_t window_;       ///< never mapped: it cannot get a grab
    uint16_t awaitedWidth_ = 1; ///< of the window, once the window manager has answered; pixels
    std::vector<xcb_keycode_t> modifiers_;
    xcb_keycode_t inert_ = 0;
    std::function<bool()> isTaken_;
    int checksLeft_ = 0;        ///< once the window manager has answered
    int checksLeftWithout_ = 0; ///< while it has not
    QTimer timer_;
};

} // namespace velmora

#pragma once

#include "platform/x11/keyboard/ModifierMap.h"
#include "platform/x11/synthesis/RealKeyboards.h"

#include <span>
#include <vector>
#include <xcb/xcb.h>
#include <xcb/xinput.h>

namespace velmora {

/// A moment in which keys are typed with exactly certain modifiers, after which the keyboard is as
/// the user has it. The server listens to no other client meanwhile, so nobody presses, lets go of
/// or locks anything between the look at the keyboard and its restoring: for the time of one answer
/// of the server. It does take the real keyboards' events in; a key that the user lets go of in
/// that time is found and let go of as well.
class KeyboardTurn {
public:
    /// Takes the server and asks for the keyboard's state; nothing is waited for yet. The arguments
    /// outlive this; `keyboards` are those of the connection, which uses XKB.
    KeyboardTurn(
        xcb_connection_t* connection, const ModifierMap& modifiers, RealKeyboards& keyboards);
    /// Puts the locks back, lets the server listen to others again and sends it all. Waits for the
    /// server if keys were given back, to see whether the user still holds them.
    ~KeyboardTurn();
    KeyboardTurn(const KeyboardTurn&) = delete;
    KeyboardTurn& operator=(const KeyboardTurn&) = delete;

    /// Waits for the state, and then lets go of the modifier keys that are down, except `ours`, and
    /// makes exactly `mask` the other modifiers in effect. They are set through XKB's locks, which
    /// no application sees as keys. Latches end: a latch (sticky keys) is meant for the next key,
    /// and ours is that key.
    void setModifiers(uint8_t mask, std::span<const xcb_keycode_t> ours = {});

    /// Whether the key was down when the turn began.
    bool wasDown(xcb_keycode_t keycode) const { return isDown(session_, keycode); }

    /// Presses again what the user holds of the modifier keys, except `typed`; not the lock keys,
    /// which would switch over. Keys that were let go in an earlier turn are among them.
    void giveBackModifiers(xcb_keycode_t typed);

private:
    using KeyMap = uint8_t[32];
    struct Keyboard {
        uint8_t device;
        xcb_input_query_device_state_cookie_t asked;
        KeyMap keys;
    };
    struct GivenBack {
        uint8_t device;
        xcb_keycode_t keycode;
        unsigned request;
    };
    void readKeys();
    void readLocks(unsigned asked);
    void lock(uint8_t locks);
    void releaseWhatTheUserLetGo();

    xcb_connection_t* connection_;
    const ModifierMap& modifiers_;
    RealKeyboards& keyboards_;
    uint8_t inputEvents_; ///< the XInput extension's first event
    unsigned askedLocks_ = 0;
    xcb_query_keymap_cookie_t askedSession_{};
    KeyMap session_{};
    std::vector<Keyboard> real_;
    std::vector<GivenBack> givenBack_;
    uint8_t locked_ = 0;  ///< what the user has locked
    uint8_t changed_ = 0; ///< the locks that are not as the user has them
};

} // namespace velmora

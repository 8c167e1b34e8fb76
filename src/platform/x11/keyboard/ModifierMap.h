#pragma once

#include "platform/EventFlags.h"

#include <array>
#include <cstdint>
#include <vector>
#include <xcb/xcb.h>

namespace velmora {

/// Which keys of this keyboard are modifiers, and which of the eight real modifier bits the flags
/// of an event stand for.
class ModifierMap {
public:
    /// The keycodes that set each modifier, Shift first, Mod5 last.
    using Rows = std::array<std::vector<xcb_keycode_t>, 8>;

    /// Alt is Mod1, Super Mod4 and Num_Lock Mod2, as nearly everywhere.
    explicit ModifierMap(Rows rows = {}) : rows_(std::move(rows)) {}

    /// Asks the server for the core keyboard's modifiers, and finds by what the keys type where
    /// Alt, Super and Num_Lock are. The usual ones where that finds nothing.
    static ModifierMap read(xcb_connection_t* connection);

    /// The modifier bits that `flags` ask for; other flags have none.
    uint8_t mask(EventFlags flags) const;

    /// The flags that the modifiers in effect, `mask`, stand for.
    EventFlags flags(uint8_t mask) const;

    /// The modifier keys that are down in a key map as the server reports it, one bit a keycode.
    std::vector<xcb_keycode_t> keysDown(const uint8_t (&keymap)[32]) const;

    /// One key for each modifier in `mask` that has any.
    std::vector<xcb_keycode_t> keysFor(uint8_t mask) const;

    /// Whether pressing the key switches its modifier over (Caps_Lock, Num_Lock) rather than
    /// holding it.
    bool isLockKey(xcb_keycode_t keycode) const;

    /// A key that types nothing and does nothing; 0 when there is none.
    xcb_keycode_t silentKey() const { return silentKey_; }

private:
    Rows rows_;
    uint8_t alt_ = XCB_MOD_MASK_1;
    uint8_t super_ = XCB_MOD_MASK_4;
    uint8_t numLock_ = XCB_MOD_MASK_2;
    xcb_keycode_t silentKey_ = 0;
};

/// Whether `keycode` is down in a key map as the server reports it.
inline bool isDown(const uint8_t (&keymap)[32], xcb_keycode_t keycode) {
    return keymap[keycode / 8] & (1 << keycode % 8);
}

} // namespace velmora

#pragma once

#include <QString>
#include <memory>
#include <xcb/xcb.h>
#include <xkbcommon/xkbcommon.h>

namespace velmora {

/// What the keys of the core keyboard type in its layouts, modifiers but Shift ignored, and what
/// keys that type nothing are called.
class KeyLabels {
public:
    /// No key has a label.
    KeyLabels() = default;

    /// Asks the server for the core keyboard's map; empty when that fails. Takes a few
    /// milliseconds.
    static KeyLabels read(xcb_connection_t* connection);

    /// Labels of a keyboard map, shared with the caller.
    explicit KeyLabels(xkb_keymap* keymap);

    /// What `keycode` types in layout `group` (from 0): its character, a keypad digit whatever Num
    /// Lock says, a dead key's accent on its own; else its name ("F5"). Empty for no key.
    QString label(xcb_keycode_t keycode, unsigned group, bool shift) const;

    /// Whether the key only changes modifiers or the layout.
    bool isModifier(xcb_keycode_t keycode, unsigned group) const;

private:
    struct Release {
        void operator()(xkb_keymap* keymap) const { xkb_keymap_unref(keymap); }
        void operator()(xkb_state* state) const { xkb_state_unref(state); }
    };
    xkb_keysym_t symbol(xcb_keycode_t keycode, unsigned group, bool shift) const;
    QString keypadCharacter(xcb_keycode_t keycode, unsigned group) const;

    std::unique_ptr<xkb_keymap, Release> keymap_;
    std::unique_ptr<xkb_state, Release> state_;
};

} // namespace velmora

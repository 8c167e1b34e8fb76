#pragma once

#include "platform/x11/base/X11Connection.h"
#include "platform/x11/keyboard/ModifierMap.h"
#include "platform/x11/synthesis/ChordTrial.h"
#include "platform/x11/synthesis/KeyWatcher.h"
#include "platform/x11/synthesis/LateSwitcher.h"
#include "platform/x11/synthesis/RealKeyboards.h"

#include <memory>
#include <optional>
#include <vector>

namespace velmora {

/// Types keys in the user's place, through XTEST and one at a time. A key carries exactly its own
/// modifiers and no modifier key is pressed for it, with one exception: a combination that another
/// client has grabbed, such as the window manager's Alt+Tab, is typed with real modifier keys, held
/// from the press to the release. Their release is what such a client waits for to finish.
class Typist {
public:
    /// Types on a connection of its own, so that combinations of ours are like another client's to
    /// it. Nothing when the display takes no more clients or lacks XTEST, XKB or XInput 2.
    /// `modifiers` is the keyboard's map as it is at each time, and outlives this.
    static std::unique_ptr<Typist> open(const ModifierMap& modifiers);
    /// Lets go of what is still pressed.
    ~Typist();
    Typist(const Typist&) = delete;
    Typist& operator=(const Typist&) = delete;

    /// `mask` are the modifiers to have. The press is with the server before anything else is done.
    void press(xcb_keycode_t keycode, uint8_t mask);
    void release(xcb_keycode_t keycode, uint8_t mask);

private:
    Typist(std::unique_ptr<X11Connection> connection, const ModifierMap& modifiers);
    void notePressed();

    std::unique_ptr<X11Connection> connection_;
    const ModifierMap& modifiers_;
    ChordTrial trial_;
    RealKeyboards keyboards_;
    LateSwitcher lateSwitcher_;
    std::optional<KeyWatcher> watcher_;  ///< there from the first press on
    std::vector<xcb_keycode_t> pressed_; ///< what is down: modifiers, then the key
    uint8_t pressedMask_ = 0;            ///< the modifiers of the key that is down
};

} // namespace velmora

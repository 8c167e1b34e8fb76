#pragma once

#include "platform/KeyboardEvents.h"
#include "platform/x11/ChordTrial.h"
#include "platform/x11/KeyWatcher.h"
#include "platform/x11/LateSwitcher.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/X11Keyboard.h"

#include <vector>

namespace velmora {

/// Keys typed through XTEST. Each event carries exactly its own modifiers and no modifier key is
/// pressed for it, with one exception: a combination that another client has grabbed, such as the
/// window manager's Alt+Tab, is typed with real modifier keys, held from the press to the release.
/// Their release is what such a client waits for to finish.
class X11KeyboardEvents : public KeyboardEvents {
public:
    /// Both must outlive this.
    X11KeyboardEvents(X11Connection& connection, const X11Keyboard& keyboard);
    /// Lets go of what is still pressed.
    ~X11KeyboardEvents() override;

    void releaseAbandonedKeys() override;
    /// Nothing when the server lacks XTEST or XKB.
    std::unique_ptr<EventSource> createEventSource(EventSourceState state) override;
    std::optional<KeyboardEvent>
    createKeyboardEvent(EventSource& source, KeyCode keyCode, bool keyDown) override;
    void post(EventTapLocation location, const KeyboardEvent& event) override;

private:
    struct Before;
    Before askBefore() const;
    void press(xcb_keycode_t keycode, uint8_t mask);
    void release(xcb_keycode_t keycode, uint8_t mask);
    void restore(const std::vector<xcb_keycode_t>& held);
    void notePressed();

    X11Connection& connection_;
    const X11Keyboard& keyboard_;
    std::unique_ptr<ChordTrial> trial_;
    std::unique_ptr<LateSwitcher> lateSwitcher_; ///< there from the first event source on
    std::unique_ptr<KeyWatcher> watcher_;        ///< likewise
    std::vector<xcb_keycode_t>
        pressed_;             ///< what is down in the user's place: modifiers, then the key
    uint8_t pressedMask_ = 0; ///< the modifiers of the key that is down
    std::vector<xcb_keycode_t> heldWhilePressed_; ///< the user's keys to restore at the release
};

} // namespace velmora

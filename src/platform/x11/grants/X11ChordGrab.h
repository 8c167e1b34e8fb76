#pragma once

#include "platform/x11/base/XInput.h"
#include "platform/x11/grants/X11Grab.h"
#include "platform/x11/keyboard/X11Keyboard.h"

#include <QObject>
#include <set>

namespace velmora {

/// Presses of a key by position with certain modifiers, in any application and on each of the
/// session's master keyboards, those that come later included. The keyboard is let go
/// at once on the press, so that the release reaches the application in front and it never loses
/// the focus for longer than that. Follows the key when the keyboard changes.
class X11ChordGrab final : public X11Grab {
public:
    X11ChordGrab(
        X11Connection& connection, const X11Keyboard& keyboard, const XInput& xinput,
        const TapInterest::Chord& interest, Sink sink);
    ~X11ChordGrab() override;

    /// True also on a keyboard that has no such key, and when another program has a longer chord
    /// that contains this one: that is asked for again after each press.
    bool obtain() override;
    bool adopt(const EventTapInterest& interest) override;
    QString refusedName() const override;
    std::span<const std::chrono::milliseconds> pauses() const override;

private:
    void grab(const std::vector<std::uint32_t>& states);
    void ungrab(const std::set<std::uint32_t>& states);
    void handle(const xcb_generic_event_t& event);

    X11Connection& connection_;
    const X11Keyboard& keyboard_;
    XInput xinput_;
    TapInterest::Chord wanted_;
    Sink sink_;
    xcb_keycode_t keycode_ = 0;    ///< what is held now, 0 for none
    std::set<std::uint32_t> held_; ///< with these modifier states
    mutable QString name_;         ///< empty until asked for: it takes milliseconds
    QObject context_;
    X11Connection::Subscription subscription_;
};

} // namespace velmora

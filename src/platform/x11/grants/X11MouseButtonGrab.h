#pragma once

#include "platform/x11/base/X11Connection.h"
#include "platform/x11/grants/X11Grab.h"
#include "platform/x11/keyboard/X11Keyboard.h"

#include <map>
#include <set>
#include <vector>

namespace velmora {

/// Presses of certain mouse buttons, anywhere on the screen and whatever modifiers are held. The
/// pointer is let go at once on the press, so that the release reaches the window below. Other
/// buttons are never touched.
class X11MouseButtonGrab final : public X11Grab {
public:
    X11MouseButtonGrab(
        X11Connection& connection, const X11Keyboard& keyboard,
        const TapInterest::MouseButtons& interest, Sink sink);
    ~X11MouseButtonGrab() override;

    bool obtain() override;
    bool adopt(const EventTapInterest& interest) override;
    QString refusedName() const override;
    std::span<const std::chrono::milliseconds> pauses() const override;

private:
    /// The masks of `masks` that no other client has, now grabbed with the button.
    std::vector<std::uint16_t> grab(xcb_button_t button, const std::vector<std::uint16_t>& masks);
    void ungrab(xcb_button_t button, const std::vector<std::uint16_t>& masks);
    /// Grabs the button with every modifier mask it can have, if the plain press is among them.
    void obtainButton(xcb_button_t button);
    std::set<xcb_button_t> missing() const;
    void handle(const xcb_generic_event_t& event);

    X11Connection& connection_;
    const X11Keyboard& keyboard_;
    Sink sink_;
    std::set<xcb_button_t> wanted_;
    std::map<xcb_button_t, std::vector<std::uint16_t>> held_; ///< with which modifier masks
    X11Connection::Subscription subscription_;
};

} // namespace velmora

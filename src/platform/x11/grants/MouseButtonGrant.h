#pragma once

#include "platform/InputGrants.h"
#include "platform/x11/grants/Retries.h"
#include "platform/x11/keyboard/X11Keyboard.h"

#include <vector>

namespace velmora {

/// Presses of a mouse button, anywhere on the screen and whatever modifiers are held. The pointer
/// is let go at once on the press, so that the release reaches the window below. Asynchronous:
/// whatever this process does, the user's pointer is never frozen.
class MouseButtonGrant final : public InputGrant {
public:
    /// `number` as InputGrants counts; refused where X has no such button.
    MouseButtonGrant(
        X11Connection& connection, const X11Keyboard& keyboard, std::int64_t number,
        std::function<void()> pressed);
    ~MouseButtonGrant() override;

private:
    /// Takes the button with every modifier mask it can have, if the plain press is among them.
    void obtain();
    bool take();
    /// The masks of `masks` that no other client has, now grabbed with the button.
    std::vector<std::uint16_t> grab(const std::vector<std::uint16_t>& masks);
    void ungrab();
    void handle(const xcb_generic_event_t& event);

    X11Connection& connection_;
    const X11Keyboard& keyboard_;
    const std::int64_t number_;
    const std::function<void()> pressed_;
    xcb_button_t button_ = 0;         ///< as X counts, 0 for none
    std::vector<std::uint16_t> held_; ///< with which modifier masks
    Retries retries_{Retries::usualPauses, [this] { obtain(); }};
    X11Connection::Subscription subscription_;
};

} // namespace velmora

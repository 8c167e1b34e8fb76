#pragma once

#include "platform/x11/X11Connection.h"
#include "platform/x11/X11Grab.h"

#include <set>

namespace velmora {

/// Presses of certain mouse buttons, anywhere on the screen and whatever modifiers are held. The
/// pointer is let go at once on the press, so that the release reaches the window below. Other
/// buttons are never touched.
class X11MouseButtonGrab final : public X11Grab {
public:
    X11MouseButtonGrab(
        X11Connection& connection, const TapInterest::MouseButtons& interest, Sink sink);
    ~X11MouseButtonGrab() override;

    bool obtain() override;
    bool adopt(const EventTapInterest& interest) override;
    QString refusedName() const override;
    std::span<const std::chrono::milliseconds> pauses() const override;

private:
    void handle(const xcb_generic_event_t& event);

    X11Connection& connection_;
    Sink sink_;
    std::set<xcb_button_t> wanted_;
    std::set<xcb_button_t> held_;
    X11Connection::Subscription subscription_;
};

} // namespace velmora

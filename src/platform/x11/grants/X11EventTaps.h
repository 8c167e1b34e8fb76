#pragma once

#include "platform/EventTap.h"
#include "platform/x11/base/XInput.h"

namespace velmora {

class X11Connection;
class X11Keyboard;

/// Event taps over what an X server lets one client take: only what a tap wants is grabbed,
/// everything else goes its way without this process seeing it.
class X11EventTaps final : public EventTaps {
public:
    X11EventTaps(X11Connection& connection, const X11Keyboard& keyboard);

    /// Nothing when the server lacks XInput 2 or XKB. Location, placement and options have one
    /// value each; the latest tap made for a chord or a button gets it.
    std::unique_ptr<EventTap> create(
        EventTapLocation location, EventTapPlacement placement, EventTapOptions options,
        std::uint64_t eventsOfInterest, EventTapInterest interest, Handler handler) override;
    KeyCode keyCode(std::uint32_t nativeScanCode) const override;

private:
    X11Connection& connection_;
    const X11Keyboard& keyboard_;
    std::optional<XInput> xinput_;
};

} // namespace velmora

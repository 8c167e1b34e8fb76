#pragma once

#include "platform/x11/panel/PanelPlacement.h"

#include <xcb/xcb.h>

namespace velmora {

class X11Connection;

/// Has the window manager keep maximised windows out of a strip, from construction to destruction.
/// It heeds managed windows only, which the panel is not: a dock beside it that is not seen and
/// feels nothing. A new one each time, not one that is unmapped: a window may be mapped again only
/// when its manager has let go of it.
class X11StripReservation {
public:
    /// `place` is in pixels of the root window, `strut` what lies from the desktop's edge to its
    /// lower one.
    X11StripReservation(X11Connection& connection, const QRect& place, const TopStrut& strut);
    ~X11StripReservation();
    X11StripReservation(const X11StripReservation&) = delete;
    X11StripReservation& operator=(const X11StripReservation&) = delete;

private:
    X11Connection& connection_;
    xcb_window_t window_;
};

} // namespace velmora

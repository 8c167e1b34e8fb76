#pragma once

#include <QByteArray>
#include <cstdint>
#include <vector>
#include <xcb/xcb.h>

namespace velmora {

class X11Connection;

/// The numbers of a 32-bit property of that type, up to a generous bound. Empty when there is no
/// such property or it has another type.
std::vector<std::uint32_t> readProperty(
    X11Connection& connection, xcb_window_t window, const QByteArray& name, xcb_atom_t type);

/// Adds `events` to what `connection` gets to hear of `window`: its services share one event mask
/// a window. Nothing happens where the window has gone.
void alsoSelectEvents(X11Connection& connection, xcb_window_t window, xcb_event_mask_t events);

} // namespace velmora

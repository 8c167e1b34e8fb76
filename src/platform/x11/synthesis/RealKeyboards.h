#pragma once

#include <cstdint>
#include <vector>
#include <xcb/xcb.h>

namespace velmora {

/// The devices that a user's fingers may be on: what types into the session, XTEST's own keyboard
/// excepted. Known without asking.
class RealKeyboards {
public:
    /// Has the connection, which uses XInput 2 and takes no other events, told of devices that come
    /// and go.
    explicit RealKeyboards(xcb_connection_t* connection);

    /// XInput's numbers of the devices.
    const std::vector<uint8_t>& devices() const { return devices_; }

    /// Has the connection told of each press and release on a device, too, or no longer.
    void watchStrokes(bool watch);

    /// A press or a release on one of the devices, real or pretended.
    struct Stroke {
        uint8_t device;
        xcb_keycode_t keycode;
        bool isPress;
        unsigned request; ///< the last one of ours that came before it
    };
    /// Takes in what the connection has been told, and gives the strokes of it. Asks the server
    /// only if a device came or went.
    std::vector<Stroke> takeEvents();

private:
    void read();

    xcb_connection_t* connection_;
    std::vector<uint8_t> devices_;
};

} // namespace velmora

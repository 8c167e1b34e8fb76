#pragma once

#include <cstdint>
#include <optional>
#include <xcb/xcb.h>
#include <xcb/xinput.h>

namespace velmora {

/// The XInput 2 extension as this connection knows it.
struct XInput {
    std::uint8_t opcode = 0; ///< marks the extension's events
    /// The device through which all keyboards type into the focused window.
    xcb_input_device_id_t masterKeyboard = 0;

    /// Announces this client to the extension; nothing when the server lacks it. Waits for the
    /// server.
    static std::optional<XInput> find(xcb_connection_t* connection);

    /// `event` as the extension's event of the given type, or null when it is another.
    template<typename Event>
    const Event* eventAs(const xcb_generic_event_t& event, std::uint16_t type) const {
        if (event.response_type != XCB_GE_GENERIC)
            return nullptr;
        const auto& generic = reinterpret_cast<const xcb_ge_generic_event_t&>(event);
        return generic.extension == opcode && generic.event_type == type
                   ? reinterpret_cast<const Event*>(&event)
                   : nullptr;
    }
};

} // namespace velmora

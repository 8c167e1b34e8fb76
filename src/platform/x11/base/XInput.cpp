#include "platform/x11/base/XInput.h"

#include "platform/x11/base/Xcb.h"

namespace velmora {

std::optional<XInput> XInput::find(xcb_connection_t* connection) {
    const auto* extension = findExtension(connection, xcb_input_id);
    if (!extension)
        return std::nullopt;
    const auto versionCookie = xcb_input_xi_query_version(connection, 2, 2);
    const auto devicesCookie = xcb_input_xi_query_device(connection, XCB_INPUT_DEVICE_ALL_MASTER);
    const XcbOwned<xcb_input_xi_query_version_reply_t> version(
        xcb_input_xi_query_version_reply(connection, versionCookie, nullptr));
    const XcbOwned<xcb_input_xi_query_device_reply_t> devices(
        xcb_input_xi_query_device_reply(connection, devicesCookie, nullptr));
    if (!version || version->major_version < 2 || !devices)
        return std::nullopt;
    for (auto device = xcb_input_xi_query_device_infos_iterator(devices.get()); device.rem;
         xcb_input_xi_device_info_next(&device)) {
        if (device.data->type == XCB_INPUT_DEVICE_TYPE_MASTER_KEYBOARD)
            return XInput{extension->major_opcode, device.data->deviceid};
    }
    return std::nullopt;
}

} // namespace velmora

#include "platform/x11/synthesis/RealKeyboards.h"

#include "platform/x11/base/XInput.h"
#include "platform/x11/base/Xcb.h"

#include <QByteArrayView>

namespace velmora {

RealKeyboards::RealKeyboards(xcb_connection_t* connection) : connection_(connection) {
    watchStrokes(false);
    read();
}

void RealKeyboards::watchStrokes(bool watch) {
    struct {
        xcb_input_event_mask_t head{XCB_INPUT_DEVICE_ALL, 1};
        uint32_t mask = XCB_INPUT_XI_EVENT_MASK_HIERARCHY;
    } wanted;
    if (watch)
        wanted.mask |=
            XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
    xcb_input_xi_select_events(connection_, root, 1, &wanted.head);
}

std::vector<RealKeyboards::Stroke> RealKeyboards::takeEvents() {
    std::vector<Stroke> strokes;
    bool devicesChanged = false;
    while (const XcbOwned<xcb_generic_event_t> event{xcb_poll_for_event(connection_)}) {
        // Every client gets keyboard-mapping events.
        if (event->response_type != XCB_GE_GENERIC)
            continue;
        const auto& raw = reinterpret_cast<const xcb_input_raw_key_press_event_t&>(*event);
        if (raw.event_type == XCB_INPUT_HIERARCHY)
            devicesChanged = true;
        else
            strokes.push_back(
                {static_cast<uint8_t>(raw.deviceid), static_cast<xcb_keycode_t>(raw.detail),
                 raw.event_type == XCB_INPUT_RAW_KEY_PRESS, raw.full_sequence});
    }
    if (devicesChanged)
        read();
    return strokes;
}

void RealKeyboards::read() {
    devices_.clear();
    const XcbOwned<xcb_input_xi_query_device_reply_t> reply(xcb_input_xi_query_device_reply(
        connection_, xcb_input_xi_query_device(connection_, XCB_INPUT_DEVICE_ALL), nullptr));
    if (!reply)
        return;
    // The first master keyboard, which the server makes, is the one that the session types on.
    int master = -1;
    for (auto device = xcb_input_xi_query_device_infos_iterator(reply.get()); device.rem;
         xcb_input_xi_device_info_next(&device)) {
        const auto& info = *device.data;
        const QByteArrayView name(
            xcb_input_xi_device_info_name(&info), xcb_input_xi_device_info_name_length(&info));
        if (info.type == XCB_INPUT_DEVICE_TYPE_MASTER_KEYBOARD && master < 0)
            master = info.deviceid;
        // The server itself gives the name to each keyboard made for XTEST.
        if (info.type == XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD && info.enabled &&
            info.attachment == master && !name.endsWith("XTEST keyboard"))
            devices_.push_back(static_cast<uint8_t>(info.deviceid));
    }
}

} // namespace velmora

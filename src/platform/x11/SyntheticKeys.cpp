#include "platform/x11/SyntheticKeys.h"

#include "platform/x11/ModifierMap.h"
#include "platform/x11/XcbExtension.h"
#include "platform/x11/XcbOwned.h"

#include <QByteArrayView>
#include <vector>
#include <xcb/xinput.h>
#include <xcb/xtest.h>

namespace velmora::SyntheticKeys {
namespace {

/// Device 0 is the keyboard that XTEST types on by default.
void send(xcb_connection_t* connection, uint8_t type, xcb_keycode_t keycode, uint8_t device = 0) {
    xcb_test_fake_input(connection, type, keycode, XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0, device);
}

/// The keyboards that a user's fingers may be on.
std::vector<uint8_t> realKeyboards(xcb_connection_t* connection) {
    const XcbOwned<xcb_input_xi_query_device_reply_t> reply(xcb_input_xi_query_device_reply(
        connection, xcb_input_xi_query_device(connection, XCB_INPUT_DEVICE_ALL), nullptr));
    std::vector<uint8_t> keyboards;
    if (!reply)
        return keyboards;
    for (auto device = xcb_input_xi_query_device_infos_iterator(reply.get()); device.rem;
         xcb_input_xi_device_info_next(&device)) {
        const QByteArrayView name(
            xcb_input_xi_device_info_name(device.data),
            xcb_input_xi_device_info_name_length(device.data));
        // The server itself gives the name to each keyboard made for XTEST.
        if (device.data->type == XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD && device.data->enabled &&
            !name.endsWith("XTEST keyboard"))
            keyboards.push_back(static_cast<uint8_t>(device.data->deviceid));
    }
    return keyboards;
}

/// The keys that one keyboard reports down, one bit a keycode; nothing without keys.
const xcb_input_key_state_t* keyState(const xcb_input_query_device_state_reply_t* reply) {
    if (!reply)
        return nullptr;
    for (auto state = xcb_input_query_device_state_classes_iterator(reply); state.rem;
         xcb_input_input_state_next(&state)) {
        if (state.data->class_id == XCB_INPUT_INPUT_CLASS_KEY)
            return reinterpret_cast<const xcb_input_key_state_t*>(state.data);
    }
    return nullptr;
}

} // namespace

void press(xcb_connection_t* connection, xcb_keycode_t keycode) {
    send(connection, XCB_KEY_PRESS, keycode);
}

void release(xcb_connection_t* connection, xcb_keycode_t keycode) {
    send(connection, XCB_KEY_RELEASE, keycode);
}

void pressAgainIfHeld(xcb_connection_t* connection, std::span<const xcb_keycode_t> keycodes) {
    const auto* input = findExtension(connection, xcb_input_id);
    if (keycodes.empty() || !input)
        return;
    const auto firstEvent = input->first_event;
    const auto pressType = static_cast<uint8_t>(firstEvent + XCB_INPUT_DEVICE_KEY_PRESS);
    const auto releaseType = static_cast<uint8_t>(firstEvent + XCB_INPUT_DEVICE_KEY_RELEASE);
    const auto keyboards = realKeyboards(connection);
    std::vector<xcb_input_query_device_state_cookie_t> cookies;
    for (const uint8_t keyboard : keyboards)
        cookies.push_back(xcb_input_query_device_state(connection, keyboard));
    for (size_t i = 0; i < keyboards.size(); ++i) {
        const XcbOwned<xcb_input_query_device_state_reply_t> reply(
            xcb_input_query_device_state_reply(connection, cookies[i], nullptr));
        const xcb_input_key_state_t* state = keyState(reply.get());
        for (const xcb_keycode_t keycode : keycodes) {
            if (!state || !isDown(state->keys, keycode))
                continue;
            // A device passes on no second press of a key that it reports down already.
            send(connection, releaseType, keycode, keyboards[i]);
            send(connection, pressType, keycode, keyboards[i]);
        }
    }
}

} // namespace velmora::SyntheticKeys

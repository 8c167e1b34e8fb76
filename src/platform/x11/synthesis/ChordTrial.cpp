#include "platform/x11/synthesis/ChordTrial.h"

#include "platform/x11/base/Xcb.h"

namespace velmora {

ChordTrial::ChordTrial(xcb_connection_t* connection)
    : connection_(connection),
      root_(xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root) {}

ChordTrial::Question ChordTrial::ask(xcb_keycode_t keycode, uint8_t mask) const {
    // Core grabs and those of XInput 2 do not conflict with each other: each kind is tried.
    Question question{};
    question.coreGrab = xcb_grab_key_checked(
        connection_, false, root_, mask, keycode, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    xcb_ungrab_key(connection_, keycode, root_, mask);
    const uint32_t eventMask = XCB_INPUT_XI_EVENT_MASK_KEY_PRESS;
    const uint32_t modifiers = mask;
    question.inputGrab = xcb_input_xi_passive_grab_device(
        connection_, XCB_CURRENT_TIME, root_, XCB_CURSOR_NONE, keycode, XCB_INPUT_DEVICE_ALL_MASTER,
        1, 1, XCB_INPUT_GRAB_TYPE_KEYCODE, XCB_INPUT_GRAB_MODE_22_ASYNC,
        XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_OWNER_NO_OWNER, &eventMask, &modifiers);
    xcb_input_xi_passive_ungrab_device(
        connection_, root_, keycode, XCB_INPUT_DEVICE_ALL_MASTER, 1, XCB_INPUT_GRAB_TYPE_KEYCODE,
        &modifiers);
    return question;
}

bool ChordTrial::isTaken(const Question& question) const {
    const XcbOwned<xcb_input_xi_passive_grab_device_reply_t> input(
        xcb_input_xi_passive_grab_device_reply(connection_, question.inputGrab, nullptr));
    const XcbOwned<xcb_generic_error_t> coreError(
        xcb_request_check(connection_, question.coreGrab));
    // The reply lists the modifiers whose grab failed.
    return (input && input->num_modifiers > 0) || coreError;
}

} // namespace velmora

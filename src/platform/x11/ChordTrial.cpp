#include "platform/x11/ChordTrial.h"

#include "platform/x11/XInput.h"

namespace velmora {

std::unique_ptr<ChordTrial> ChordTrial::open() {
    auto connection = X11Connection::open();
    if (!connection)
        return nullptr;
    return std::unique_ptr<ChordTrial>(new ChordTrial(std::move(connection)));
}

ChordTrial::ChordTrial(std::unique_ptr<X11Connection> connection)
    : connection_(std::move(connection)), hasInput_(XInput::find(*connection_).has_value()) {}

ChordTrial::Question ChordTrial::ask(xcb_keycode_t keycode, uint8_t mask) {
    // Nothing here is of interest, yet every client gets keyboard-mapping events.
    while (const XcbOwned<xcb_generic_event_t> event{xcb_poll_for_event(*connection_)}) {
    }
    // Core grabs and those of XInput 2 do not conflict with each other: each kind is tried.
    Question question{};
    question.coreGrab = xcb_grab_key_checked(
        *connection_, false, connection_->root(), mask, keycode, XCB_GRAB_MODE_ASYNC,
        XCB_GRAB_MODE_ASYNC);
    xcb_ungrab_key(*connection_, keycode, connection_->root(), mask);
    if (hasInput_) {
        const uint32_t eventMask = XCB_INPUT_XI_EVENT_MASK_KEY_PRESS;
        const uint32_t modifiers = mask;
        question.inputGrab =
            xcb_input_xi_passive_grab_device(
                *connection_, XCB_CURRENT_TIME, connection_->root(), XCB_CURSOR_NONE, keycode,
                XCB_INPUT_DEVICE_ALL_MASTER, 1, 1, XCB_INPUT_GRAB_TYPE_KEYCODE,
                XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_MODE_22_ASYNC,
                XCB_INPUT_GRAB_OWNER_NO_OWNER, &eventMask, &modifiers)
                .sequence;
        xcb_input_xi_passive_ungrab_device(
            *connection_, connection_->root(), keycode, XCB_INPUT_DEVICE_ALL_MASTER, 1,
            XCB_INPUT_GRAB_TYPE_KEYCODE, &modifiers);
    }
    question.letGo = xcb_get_input_focus(*connection_);
    xcb_flush(*connection_);
    return question;
}

bool ChordTrial::isTaken(const Question& question) {
    bool taken = false;
    if (question.inputGrab) {
        const XcbOwned<xcb_input_xi_passive_grab_device_reply_t> reply(
            xcb_input_xi_passive_grab_device_reply(*connection_, {question.inputGrab}, nullptr));
        // The reply lists the modifiers whose grab failed.
        taken = reply && reply->num_modifiers > 0;
    }
    const XcbOwned<xcb_generic_error_t> error(xcb_request_check(*connection_, question.coreGrab));
    // The server may turn to other clients between two requests. A key pressed while the trial
    // still holds it would be lost to the trial.
    const XcbOwned<xcb_get_input_focus_reply_t> letGo(
        xcb_get_input_focus_reply(*connection_, question.letGo, nullptr));
    return taken || error;
}

} // namespace velmora

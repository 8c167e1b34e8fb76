#include "platform/x11/grants/X11KeyboardGrab.h"

#include "platform/x11/base/Xcb.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace velmora {

X11KeyboardGrab::X11KeyboardGrab(
    X11Connection& connection, const X11Keyboard& keyboard, const XInput& xinput,
    const TapInterest::EveryKey& interest, Sink sink)
    : connection_(connection),
      keyboard_(keyboard),
      xinput_(xinput),
      view_(interest.view),
      sink_(std::move(sink)) {
    subscription_ = connection.subscribe([this](const auto& event) { handle(event); });
    keyboard.observe(&context_, [this] { labels_ = KeyLabels::read(connection_); });
}

X11KeyboardGrab::~X11KeyboardGrab() {
    giveBack();
}

bool X11KeyboardGrab::obtain() {
    if (!view_ || window_ != XCB_WINDOW_NONE)
        return true;
    const auto window = static_cast<xcb_window_t>(view_->window()->winId());
    // Releases are not asked for; while grabbed they reach nobody.
    constexpr std::uint32_t presses = XCB_INPUT_XI_EVENT_MASK_KEY_PRESS;
    const auto cookie = xcb_input_xi_grab_device(
        connection_, window, XCB_CURRENT_TIME, XCB_CURSOR_NONE, xinput_.masterKeyboard,
        XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_OWNER_NO_OWNER,
        1, &presses);
    const XcbOwned<xcb_input_xi_grab_device_reply_t> reply(
        xcb_input_xi_grab_device_reply(connection_, cookie, nullptr));
    if (!reply || reply->status != XCB_GRAB_STATUS_SUCCESS)
        return false;
    window_ = window;
    followModifiers(true);
    labels_ = KeyLabels::read(connection_);
    return true;
}

void X11KeyboardGrab::giveBack() {
    if (window_ == XCB_WINDOW_NONE)
        return;
    window_ = XCB_WINDOW_NONE;
    xcb_input_xi_ungrab_device(connection_, XCB_CURRENT_TIME, xinput_.masterKeyboard);
    followModifiers(false);
    xcb_flush(connection_);
}

void X11KeyboardGrab::followModifiers(bool follow) {
    constexpr std::uint16_t notify = XCB_XKB_EVENT_TYPE_STATE_NOTIFY;
    xcb_xkb_select_events_details_t details{};
    details.affectState = details.stateDetails = XCB_XKB_STATE_PART_MODIFIER_STATE;
    xcb_xkb_select_events_aux(
        connection_, XCB_XKB_ID_USE_CORE_KBD, notify, follow ? 0 : notify, 0, 0, 0, &details);
}

bool X11KeyboardGrab::adopt(const EventTapInterest& interest) {
    const auto* everyKey = std::get_if<TapInterest::EveryKey>(&interest);
    if (everyKey && everyKey->view != view_) {
        giveBack();
        view_ = everyKey->view;
    }
    return everyKey;
}

QString X11KeyboardGrab::refusedName() const {
    return u"⌨️ The keyboard"_s;
}

std::span<const std::chrono::milliseconds> X11KeyboardGrab::pauses() const {
    // A window switcher or a menu lets go when the user is done with it, a moment from now.
    static constexpr std::chrono::milliseconds pauses[] = {50ms, 100ms, 250ms};
    return pauses;
}

void X11KeyboardGrab::handle(const xcb_generic_event_t& event) {
    if (window_ == XCB_WINDOW_NONE)
        return;
    if (const auto* press =
            xinput_.eventAs<xcb_input_key_press_event_t>(event, XCB_INPUT_KEY_PRESS)) {
        if (press->event == window_)
            handlePress(*press);
        return;
    }
    // The second byte of each XKB event says which it is.
    if (event.response_type != keyboard_.xkbEvent() || event.pad0 != XCB_XKB_STATE_NOTIFY)
        return;
    const auto& state = reinterpret_cast<const xcb_xkb_state_notify_event_t&>(event);
    sink_.event(
        {.type = EventType::flagsChanged,
         .keyCode = keyboard_.positions().position(state.keycode).value_or(kNoKeyCode),
         .flags = keyboard_.modifiers().flags(state.mods),
         .isFresh = state.eventType == XCB_KEY_PRESS});
}

void X11KeyboardGrab::handlePress(const xcb_input_key_press_event_t& press) {
    const auto keycode = static_cast<xcb_keycode_t>(press.detail);
    const unsigned group = press.group.effective;
    // Of modifier keys only the change of flags is told.
    if (labels_.isModifier(keycode, group))
        return;
    const EventFlags flags =
        keyboard_.modifiers().flags(static_cast<std::uint8_t>(press.mods.effective));
    const bool shift = flags & kCGEventFlagMaskShift;
    sink_.event(
        {.type = EventType::keyDown,
         .keyCode = keyboard_.positions().position(keycode).value_or(kNoKeyCode),
         .flags = flags,
         .charactersIgnoringModifiers = labels_.label(keycode, group, shift),
         .isFresh = !(press.flags & XCB_INPUT_KEY_EVENT_FLAGS_KEY_REPEAT)});
}

} // namespace velmora

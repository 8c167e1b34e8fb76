#include "platform/x11/grants/EveryKeyGrant.h"

#include "foundation/LocalizedString.h"
#include "platform/x11/base/Xcb.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace velmora {
namespace {

// A window switcher or a menu lets go when the user is done with it, a moment from now.
constexpr std::chrono::milliseconds pauses[] = {50ms, 100ms, 250ms};

} // namespace

EveryKeyGrant::EveryKeyGrant(
    X11Connection& connection, const X11Keyboard& keyboard, const XInput& xinput, QWidget& view,
    InputGrants::KeyHandler handler)
    : InputGrant(
          {.swallows = true, .passesReleaseOn = false, .marksRepeats = true, .isByPosition = true}),
      connection_(connection),
      keyboard_(keyboard),
      xinput_(xinput),
      view_(&view),
      handler_(std::move(handler)),
      retries_(pauses, [this] { obtain(); }) {
    subscription_ = connection.subscribe([this](const auto& event) { handle(event); });
    obtain();
}

EveryKeyGrant::~EveryKeyGrant() {
    if (window_ == XCB_WINDOW_NONE)
        return;
    xcb_input_xi_ungrab_device(connection_, XCB_CURRENT_TIME, xinput_.masterKeyboard);
    followModifiers(false);
    xcb_flush(connection_);
}

void EveryKeyGrant::obtain() {
    if (!view_)
        return;
    const auto window = static_cast<xcb_window_t>(view_->window()->winId());
    // Before the grab: a modifier may go down, and come up, the moment it is there.
    followModifiers(true);
    if (!grab(window)) {
        followModifiers(false);
        retries_.noteRefusal(u"⌨️ The keyboard"_s);
        setState(State::pending, localizedString("grant_held_by_other"));
        return;
    }
    window_ = window;
    keyboard_.labels(); // before the first key needs them
    retries_.noteSuccess();
    setState(State::granted);
}

bool EveryKeyGrant::grab(xcb_window_t window) {
    // Releases are not asked for; while grabbed they reach nobody.
    constexpr std::uint32_t presses = XCB_INPUT_XI_EVENT_MASK_KEY_PRESS;
    const auto cookie = xcb_input_xi_grab_device(
        connection_, window, XCB_CURRENT_TIME, XCB_CURSOR_NONE, xinput_.masterKeyboard,
        XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_OWNER_NO_OWNER,
        1, &presses);
    const XcbOwned<xcb_input_xi_grab_device_reply_t> reply(
        xcb_input_xi_grab_device_reply(connection_, cookie, nullptr));
    return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

void EveryKeyGrant::followModifiers(bool follow) {
    constexpr std::uint16_t notify = XCB_XKB_EVENT_TYPE_STATE_NOTIFY;
    xcb_xkb_select_events_details_t details{};
    details.affectState = details.stateDetails = XCB_XKB_STATE_PART_MODIFIER_STATE;
    xcb_xkb_select_events_aux(
        connection_, XCB_XKB_ID_USE_CORE_KBD, notify, follow ? 0 : notify, 0, 0, 0, &details);
}

void EveryKeyGrant::handle(const xcb_generic_event_t& event) {
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
    const auto handler = handler_; // it may destroy this grant
    handler(
        {.kind = KeyInput::Kind::flagsChanged,
         .keyCode = keyboard_.positions().position(state.keycode).value_or(kNoKeyCode),
         .flags = keyboard_.modifiers().flags(state.mods),
         .isFresh = state.eventType == XCB_KEY_PRESS});
}

void EveryKeyGrant::handlePress(const xcb_input_key_press_event_t& press) {
    const auto keycode = static_cast<xcb_keycode_t>(press.detail);
    const unsigned group = press.group.effective;
    // Of modifier keys only the change of flags is told.
    if (keyboard_.labels().isModifier(keycode, group))
        return;
    const EventFlags flags =
        keyboard_.modifiers().flags(static_cast<std::uint8_t>(press.mods.effective));
    const bool shift = flags & kCGEventFlagMaskShift;
    const auto handler = handler_; // it may destroy this grant
    handler(
        {.keyCode = keyboard_.positions().position(keycode).value_or(kNoKeyCode),
         .flags = flags,
         .charactersIgnoringModifiers = keyboard_.labels().label(keycode, group, shift),
         .isFresh = !(press.flags & XCB_INPUT_KEY_EVENT_FLAGS_KEY_REPEAT)});
}

} // namespace velmora

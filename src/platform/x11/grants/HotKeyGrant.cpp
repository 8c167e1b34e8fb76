#include "platform/x11/grants/HotKeyGrant.h"

#include "foundation/LocalizedString.h"
#include "platform/x11/grants/ChordStates.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace velmora {

HotKeyGrant::HotKeyGrant(
    X11Connection& connection, const X11Keyboard& keyboard, const XInput& xinput,
    const Chord& chord, InputGrants::KeyHandler pressed)
    : InputGrant(
          {.swallows = true, .passesReleaseOn = true, .marksRepeats = true, .isByPosition = true}),
      connection_(connection),
      keyboard_(keyboard),
      xinput_(xinput),
      chord_(chord),
      pressed_(std::move(pressed)) {
    subscription_ = connection.subscribe([this](const auto& event) { handle(event); });
    keyboard.observe(&context_, [this] {
        name_.clear();
        obtain();
    });
    obtain();
}

HotKeyGrant::~HotKeyGrant() {
    ungrab(held_);
    xcb_flush(connection_);
}

void HotKeyGrant::obtain() {
    takeMissing();
    if (keycode_ == 0) {
        retries_.stop();
        setState(State::refused, localizedString("grant_no_such_key"));
    } else if (holdsPlainChord()) {
        retries_.noteSuccess();
        setState(State::granted);
    } else {
        retries_.noteRefusal(name());
        setState(State::pending, localizedString("grant_held_by_other"));
    }
}

void HotKeyGrant::takeMissing() {
    const xcb_keycode_t keycode = keyboard_.positions().keycode(chord_.keyCode).value_or(0);
    const std::vector<std::uint32_t> states =
        chordStates(keyboard_.modifiers(), chord_.requiredFlags);
    std::set<std::uint32_t> dropped = held_;
    if (keycode == keycode_)
        std::erase_if(dropped, [&](std::uint32_t state) {
            return std::ranges::binary_search(states, state);
        });
    ungrab(dropped);
    keycode_ = keycode;
    if (keycode_ == 0)
        return;
    std::vector<std::uint32_t> missing;
    std::ranges::copy_if(states, std::back_inserter(missing), [this](std::uint32_t state) {
        return !held_.contains(state);
    });
    grab(missing);
}

bool HotKeyGrant::holdsPlainChord() const {
    const ModifierMap& modifiers = keyboard_.modifiers();
    return std::ranges::all_of(
        chordStates(modifiers, chord_.requiredFlags), [&](std::uint32_t state) {
            return held_.contains(state) || !isPlainChord(modifiers, chord_.requiredFlags, state);
        });
}

void HotKeyGrant::grab(const std::vector<std::uint32_t>& states) {
    if (states.empty())
        return;
    // Core grabs, which most window managers use, and those of XInput 2 do not conflict: whoever
    // came last would have it, and nobody would know. Tried, and let go of again.
    std::optional<xcb_void_cookie_t> coreGrab;
    const auto plain = std::ranges::find_if(states, [this](std::uint32_t state) {
        return isPlainChord(keyboard_.modifiers(), chord_.requiredFlags, state);
    });
    if (plain != states.end()) {
        const auto mask = static_cast<std::uint16_t>(*plain);
        coreGrab = xcb_grab_key_checked(
            connection_, false, connection_.root(), mask, keycode_, XCB_GRAB_MODE_ASYNC,
            XCB_GRAB_MODE_ASYNC);
        xcb_ungrab_key(connection_, keycode_, connection_.root(), mask);
    }
    constexpr std::uint32_t presses = XCB_INPUT_XI_EVENT_MASK_KEY_PRESS;
    const auto cookie = xcb_input_xi_passive_grab_device(
        connection_, XCB_CURRENT_TIME, connection_.root(), XCB_CURSOR_NONE, keycode_,
        XCB_INPUT_DEVICE_ALL_MASTER, static_cast<std::uint16_t>(states.size()), 1,
        XCB_INPUT_GRAB_TYPE_KEYCODE, XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_MODE_22_ASYNC,
        XCB_INPUT_GRAB_OWNER_NO_OWNER, &presses, states.data());
    const XcbOwned<xcb_input_xi_passive_grab_device_reply_t> reply(
        xcb_input_xi_passive_grab_device_reply(connection_, cookie, nullptr));
    if (!reply)
        return;
    held_.insert(states.begin(), states.end());
    // The reply lists the states that another client has.
    const auto* refused = xcb_input_xi_passive_grab_device_modifiers(reply.get());
    for (int i = 0; i < xcb_input_xi_passive_grab_device_modifiers_length(reply.get()); ++i)
        held_.erase(refused[i].modifiers);
    // Its answer came before that reply.
    if (coreGrab && XcbOwned<xcb_generic_error_t>(xcb_request_check(connection_, *coreGrab)))
        ungrab(held_);
}

void HotKeyGrant::ungrab(const std::set<std::uint32_t>& states) {
    if (states.empty())
        return;
    const std::vector<std::uint32_t> list(states.begin(), states.end());
    xcb_input_xi_passive_ungrab_device(
        connection_, connection_.root(), keycode_, XCB_INPUT_DEVICE_ALL_MASTER,
        static_cast<std::uint16_t>(list.size()), XCB_INPUT_GRAB_TYPE_KEYCODE, list.data());
    for (const std::uint32_t state : list)
        held_.erase(state);
}

const QString& HotKeyGrant::name() {
    if (!name_.isEmpty())
        return name_;
    QStringList parts;
    for (const auto& [flag, modifier] :
         {std::pair(kCGEventFlagMaskCommand, u"Command"_s),
          std::pair(kCGEventFlagMaskAlternate, u"Option"_s),
          std::pair(kCGEventFlagMaskControl, u"Control"_s),
          std::pair(kCGEventFlagMaskShift, u"Shift"_s)}) {
        if (chord_.requiredFlags & flag)
            parts << modifier;
    }
    parts << keyboard_.labels().label(keycode_, 0, false).toUpper();
    return name_ = u"⌨️ "_s + parts.join(u'+');
}

void HotKeyGrant::handle(const xcb_generic_event_t& event) {
    const auto* press = xinput_.eventAs<xcb_input_key_press_event_t>(event, XCB_INPUT_KEY_PRESS);
    if (!press || press->event != connection_.root() || press->detail != keycode_)
        return;
    // By the press's time: a grab that was made since stays.
    xcb_input_xi_ungrab_device(connection_, press->time, press->deviceid);
    xcb_flush(connection_);
    // A longer chord that another program had may be free by now; no timer waits for that. Asked
    // only once the press is delivered: the answer takes its time.
    QMetaObject::invokeMethod(
        &context_, [this] { obtain(); }, Qt::QueuedConnection);
    const auto modifiers = static_cast<std::uint8_t>(press->mods.effective);
    const auto pressed = pressed_; // it may destroy this grant
    pressed(
        {.keyCode = chord_.keyCode,
         .flags = keyboard_.modifiers().flags(modifiers),
         .isFresh = !(press->flags & XCB_INPUT_KEY_EVENT_FLAGS_KEY_REPEAT)});
}

} // namespace velmora

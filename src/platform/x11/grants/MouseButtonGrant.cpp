#include "platform/x11/grants/MouseButtonGrant.h"

#include "foundation/LocalizedString.h"
#include "platform/x11/grants/ChordStates.h"

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// The X server counts from 1, and keeps 4 to 7 for the wheels; 0 for left, right and what it has
/// no number for.
constexpr xcb_button_t xButton(std::int64_t number) {
    if (number == 2)
        return 2;
    return number < 3 || number > 250 ? 0 : static_cast<xcb_button_t>(number + 5);
}

/// The states of the eight modifiers in which a press counts as plain, or all others.
std::vector<std::uint16_t> masks(const ModifierMap& modifiers, bool plain) {
    std::vector<std::uint16_t> masks;
    for (unsigned mask = 0; mask <= 0xff; ++mask) {
        if (isPlainChord(modifiers, 0, mask) == plain)
            masks.push_back(static_cast<std::uint16_t>(mask));
    }
    return masks;
}

} // namespace

MouseButtonGrant::MouseButtonGrant(
    X11Connection& connection, const X11Keyboard& keyboard, std::int64_t number,
    std::function<void()> pressed)
    : InputGrant(
          {.swallows = true, .passesReleaseOn = true, .marksRepeats = true, .isByPosition = true}),
      connection_(connection),
      keyboard_(keyboard),
      number_(number),
      pressed_(std::move(pressed)),
      button_(xButton(number)) {
    if (button_ == 0) {
        setState(State::refused, localizedString("grant_no_such_button"));
        return;
    }
    subscription_ = connection.subscribe([this](const auto& event) { handle(event); });
    obtain();
}

MouseButtonGrant::~MouseButtonGrant() {
    ungrab();
    xcb_flush(connection_);
}

void MouseButtonGrant::obtain() {
    if (take()) {
        retries_.noteSuccess();
        setState(State::granted);
    } else {
        // The user counts from 1.
        retries_.noteRefusal(u"🖱️ Mouse button %1"_s.arg(number_ + 1));
        setState(State::pending, localizedString("grant_held_by_other"));
    }
}

bool MouseButtonGrant::take() {
    held_ = grab({XCB_MOD_MASK_ANY});
    if (!held_.empty())
        return true;
    // Another client has it with some modifier. If that is the plain press, the rest is not even
    // asked for: a try that fails costs little, however often.
    const auto plain = masks(keyboard_.modifiers(), true);
    held_ = grab(plain);
    if (held_.size() < plain.size()) {
        ungrab();
        xcb_flush(connection_);
        return false;
    }
    for (const std::uint16_t mask : grab(masks(keyboard_.modifiers(), false)))
        held_.push_back(mask);
    return true;
}

std::vector<std::uint16_t> MouseButtonGrant::grab(const std::vector<std::uint16_t>& masks) {
    std::vector<xcb_void_cookie_t> asked;
    asked.reserve(masks.size());
    for (const std::uint16_t mask : masks)
        asked.push_back(xcb_grab_button_checked(
            connection_, false, connection_.root(), XCB_EVENT_MASK_BUTTON_PRESS,
            XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC, XCB_WINDOW_NONE, XCB_CURSOR_NONE, button_,
            mask));
    std::vector<std::uint16_t> granted;
    granted.reserve(masks.size());
    for (std::size_t i = 0; i < masks.size(); ++i) {
        const XcbOwned<xcb_generic_error_t> error(xcb_request_check(connection_, asked[i]));
        if (!error)
            granted.push_back(masks[i]);
    }
    return granted;
}

void MouseButtonGrant::ungrab() {
    for (const std::uint16_t mask : held_)
        xcb_ungrab_button(connection_, button_, connection_.root(), mask);
    held_.clear();
}

void MouseButtonGrant::handle(const xcb_generic_event_t& event) {
    // What a client merely sent (bit 0x80) is no press.
    if (event.response_type != XCB_BUTTON_PRESS)
        return;
    const auto& press = reinterpret_cast<const xcb_button_press_event_t&>(event);
    if (press.event != connection_.root() || press.detail != button_)
        return;
    // By the press's time: a grab that was made since stays.
    xcb_ungrab_pointer(connection_, press.time);
    xcb_flush(connection_);
    const auto pressed = pressed_; // it may destroy this grant
    pressed();
}

} // namespace velmora

#include "platform/x11/grants/X11MouseButtonGrab.h"

#include "platform/x11/grants/ChordStates.h"
#include "platform/x11/grants/MouseButtonNumbers.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

std::set<xcb_button_t> tappable(const TapInterest::MouseButtons& interest) {
    std::set<xcb_button_t> buttons;
    for (const std::int64_t number : interest.buttonNumbers) {
        if (const auto button = xButtonFromNumber(number))
            buttons.insert(*button);
    }
    return buttons;
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

X11MouseButtonGrab::X11MouseButtonGrab(
    X11Connection& connection, const X11Keyboard& keyboard,
    const TapInterest::MouseButtons& interest, Sink sink)
    : connection_(connection),
      keyboard_(keyboard),
      sink_(std::move(sink)),
      wanted_(tappable(interest)) {
    subscription_ = connection.subscribe([this](const auto& event) { handle(event); });
}

X11MouseButtonGrab::~X11MouseButtonGrab() {
    for (const auto& [button, masks] : held_)
        ungrab(button, masks);
    xcb_flush(connection_);
}

bool X11MouseButtonGrab::obtain() {
    std::erase_if(held_, [this](const auto& held) {
        if (wanted_.contains(held.first))
            return false;
        ungrab(held.first, held.second);
        return true;
    });
    for (const xcb_button_t button : missing())
        obtainButton(button);
    xcb_flush(connection_);
    return missing().empty();
}

void X11MouseButtonGrab::obtainButton(xcb_button_t button) {
    auto granted = grab(button, {XCB_MOD_MASK_ANY});
    if (granted.empty()) {
        // Another client has it with some modifier. If that is the plain press, the rest is not
        // even asked for: a try that fails costs little, however often.
        const auto plain = masks(keyboard_.modifiers(), true);
        granted = grab(button, plain);
        if (granted.size() < plain.size()) {
            ungrab(button, granted);
            return;
        }
        for (const std::uint16_t mask : grab(button, masks(keyboard_.modifiers(), false)))
            granted.push_back(mask);
    }
    held_.emplace(button, std::move(granted));
}

std::vector<std::uint16_t>
X11MouseButtonGrab::grab(xcb_button_t button, const std::vector<std::uint16_t>& masks) {
    std::vector<xcb_void_cookie_t> asked;
    for (const std::uint16_t mask : masks)
        asked.push_back(xcb_grab_button_checked(
            connection_, false, connection_.root(), XCB_EVENT_MASK_BUTTON_PRESS,
            XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC, XCB_WINDOW_NONE, XCB_CURSOR_NONE, button,
            mask));
    std::vector<std::uint16_t> granted;
    for (std::size_t i = 0; i < masks.size(); ++i) {
        const XcbOwned<xcb_generic_error_t> error(xcb_request_check(connection_, asked[i]));
        if (!error)
            granted.push_back(masks[i]);
    }
    return granted;
}

void X11MouseButtonGrab::ungrab(xcb_button_t button, const std::vector<std::uint16_t>& masks) {
    for (const std::uint16_t mask : masks)
        xcb_ungrab_button(connection_, button, connection_.root(), mask);
}

std::set<xcb_button_t> X11MouseButtonGrab::missing() const {
    std::set<xcb_button_t> buttons = wanted_;
    std::erase_if(buttons, [this](xcb_button_t button) { return held_.contains(button); });
    return buttons;
}

bool X11MouseButtonGrab::adopt(const EventTapInterest& interest) {
    const auto* buttons = std::get_if<TapInterest::MouseButtons>(&interest);
    if (buttons)
        wanted_ = tappable(*buttons);
    return buttons;
}

QString X11MouseButtonGrab::refusedName() const {
    const std::set<xcb_button_t> refused = missing();
    // The user counts from 1.
    return refused.empty()
               ? QString()
               : u"🖱️ Mouse button %1"_s.arg(numberFromXButton(*refused.begin()) + 1);
}

std::span<const std::chrono::milliseconds> X11MouseButtonGrab::pauses() const {
    return usualPauses;
}

void X11MouseButtonGrab::handle(const xcb_generic_event_t& event) {
    // What a client merely sent (bit 0x80) is no press.
    if (event.response_type != XCB_BUTTON_PRESS)
        return;
    const auto& press = reinterpret_cast<const xcb_button_press_event_t&>(event);
    if (press.event != connection_.root())
        return;
    // By the press's time: a grab that was made since stays.
    xcb_ungrab_pointer(connection_, press.time);
    xcb_flush(connection_);
    if (wanted_.contains(press.detail))
        sink_.event(
            {.type = EventType::otherMouseDown, .buttonNumber = numberFromXButton(press.detail)});
}

} // namespace velmora

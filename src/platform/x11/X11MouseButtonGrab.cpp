#include "platform/x11/X11MouseButtonGrab.h"

#include "platform/x11/ChordStates.h"
#include "platform/x11/MouseButtonNumbers.h"

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

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

/// Each state of the eight modifiers.
std::vector<std::uint16_t> allMasks() {
    std::vector<std::uint16_t> masks(256);
    std::iota(masks.begin(), masks.end(), std::uint16_t(0));
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
    auto masks = grab(button, {XCB_MOD_MASK_ANY});
    if (masks.empty()) {
        // Another client has it with some modifier. That leaves the others.
        masks = grab(button, allMasks());
        const auto isTaken = [&](std::uint16_t mask) {
            return isPlainChord(keyboard_.modifiers(), 0, mask) &&
                   !std::ranges::binary_search(masks, mask);
        };
        if (std::ranges::any_of(allMasks(), isTaken)) {
            ungrab(button, masks);
            return;
        }
    }
    held_.emplace(button, std::move(masks));
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
    static constexpr std::chrono::milliseconds pauses[] = {100ms, 2s};
    return pauses;
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

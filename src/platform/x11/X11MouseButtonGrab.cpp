#include "platform/x11/X11MouseButtonGrab.h"

#include "platform/x11/MouseButtonNumbers.h"

#include <algorithm>
#include <iterator>

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

std::set<xcb_button_t>
without(const std::set<xcb_button_t>& all, const std::set<xcb_button_t>& excluded) {
    std::set<xcb_button_t> rest;
    std::ranges::set_difference(all, excluded, std::inserter(rest, rest.end()));
    return rest;
}

} // namespace

X11MouseButtonGrab::X11MouseButtonGrab(
    X11Connection& connection, const TapInterest::MouseButtons& interest, Sink sink)
    : connection_(connection), sink_(std::move(sink)), wanted_(tappable(interest)) {
    subscription_ = connection.subscribe([this](const auto& event) { handle(event); });
}

X11MouseButtonGrab::~X11MouseButtonGrab() {
    for (const xcb_button_t button : held_)
        xcb_ungrab_button(connection_, button, connection_.root(), XCB_MOD_MASK_ANY);
    xcb_flush(connection_);
}

bool X11MouseButtonGrab::obtain() {
    for (const xcb_button_t button : without(held_, wanted_)) {
        xcb_ungrab_button(connection_, button, connection_.root(), XCB_MOD_MASK_ANY);
        held_.erase(button);
    }
    std::vector<std::pair<xcb_button_t, xcb_void_cookie_t>> asked;
    for (const xcb_button_t button : without(wanted_, held_)) {
        const xcb_void_cookie_t cookie = xcb_grab_button_checked(
            connection_, false, connection_.root(), XCB_EVENT_MASK_BUTTON_PRESS,
            XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC, XCB_WINDOW_NONE, XCB_CURSOR_NONE, button,
            XCB_MOD_MASK_ANY);
        asked.emplace_back(button, cookie);
    }
    for (const auto& [button, cookie] : asked) {
        const XcbOwned<xcb_generic_error_t> error(xcb_request_check(connection_, cookie));
        if (!error)
            held_.insert(button);
    }
    xcb_flush(connection_);
    return held_ == wanted_;
}

bool X11MouseButtonGrab::adopt(const EventTapInterest& interest) {
    const auto* buttons = std::get_if<TapInterest::MouseButtons>(&interest);
    if (buttons)
        wanted_ = tappable(*buttons);
    return buttons;
}

QString X11MouseButtonGrab::refusedName() const {
    const std::set<xcb_button_t> missing = without(wanted_, held_);
    // The user counts from 1.
    return missing.empty()
               ? QString()
               : u"🖱️ Mouse button %1"_s.arg(numberFromXButton(*missing.begin()) + 1);
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

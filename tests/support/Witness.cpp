#include "support/Witness.h"

#include "support/Desktop.h"
#include "support/TestDisplay.h"

#include <algorithm>
#include <stdexcept>
#include <xkbcommon/xkbcommon-x11.h>

namespace velmora::test {

Witness::Witness(const QRect& geometry) : window_(xcb_generate_id(client_)) {
    // As toolkits do; other clients would see the group as a modifier.
    xkb_x11_setup_xkb_extension(
        client_, XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
        XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, nullptr, nullptr);
    const uint32_t values[] = {
        client_.screen().white_pixel,
        XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE | XCB_EVENT_MASK_BUTTON_PRESS |
            XCB_EVENT_MASK_BUTTON_RELEASE | XCB_EVENT_MASK_FOCUS_CHANGE};
    xcb_create_window(
        client_, XCB_COPY_FROM_PARENT, window_, client_.root(), static_cast<int16_t>(geometry.x()),
        static_cast<int16_t>(geometry.y()), static_cast<uint16_t>(geometry.width()),
        static_cast<uint16_t>(geometry.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
        XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, values);
    xcb_change_property(
        client_, XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8, 7,
        "witness");
    // ICCCM hints: the user chose this place; the window wants the keyboard focus.
    const uint32_t sizeHints[18] = {1};
    xcb_change_property(
        client_, XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_NORMAL_HINTS, XCB_ATOM_WM_SIZE_HINTS,
        32, 18, sizeHints);
    const uint32_t hints[9] = {1, 1};
    xcb_change_property(
        client_, XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS, 32, 9,
        hints);
    // A window manager that focuses new windows late would add a focus event of its own, so it has
    // to agree.
    const auto takeFocus = [this] {
        if (inputFocus(client_) != window_)
            xcb_set_input_focus(client_, XCB_INPUT_FOCUS_PARENT, window_, XCB_CURRENT_TIME);
        return inputFocus(client_) == window_ &&
               (!hasWindowManager(client_) || activeWindow(client_) == window_);
    };
    // A window manager that is still starting may overlook the window: mapped again until it holds.
    const bool focused = waitFor([&] {
        xcb_unmap_window(client_, window_);
        xcb_map_window(client_, window_);
        client_.sync();
        return waitFor(takeFocus, 500);
    });
    if (!focused)
        throw std::runtime_error("the witness window does not get the focus");
    clear();
}

Witness::~Witness() {
    xcb_destroy_window(client_, window_);
    client_.sync();
}

void Witness::markAsInUse() const {
    const XClient client; // its own: nothing of what the witness waits for may be lost
    const uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(client, window_, XCB_CW_EVENT_MASK, &events);
    const xcb_atom_t property = client.atom("_NET_WM_USER_TIME");
    const auto change = [&](uint8_t mode, uint32_t length, const uint32_t* time) {
        xcb_change_property(client, mode, window_, property, XCB_ATOM_CARDINAL, 32, length, time);
        xcb_flush(client);
    };
    change(XCB_PROP_MODE_APPEND, 0, nullptr);
    const Reply<xcb_generic_event_t> event(xcb_wait_for_event(client));
    const uint32_t now = reinterpret_cast<const xcb_property_notify_event_t&>(*event).time;
    change(XCB_PROP_MODE_REPLACE, 1, &now);
    client.sync();
}

void Witness::record(const xcb_generic_event_t& event) {
    const uint8_t type = event.response_type & 0x7f;
    if (type >= XCB_KEY_PRESS && type <= XCB_BUTTON_RELEASE) {
        // Keys and buttons have one layout.
        const auto& input = reinterpret_cast<const xcb_key_press_event_t&>(event);
        events_.push_back({type, input.detail, input.state});
    } else if (type == XCB_FOCUS_IN || type == XCB_FOCUS_OUT) {
        const auto& focus = reinterpret_cast<const xcb_focus_in_event_t&>(event);
        events_.push_back({type, focus.detail, focus.mode});
    }
}

void Witness::readArrived() {
    while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(client_)})
        record(*event);
}

const std::vector<Witness::Event>& Witness::events() {
    client_.sync();
    readArrived();
    return events_;
}

std::vector<Witness::Event> Witness::keys() {
    std::vector<Event> keys;
    std::ranges::copy_if(events(), std::back_inserter(keys), [](const Event& event) {
        return event.type == XCB_KEY_PRESS || event.type == XCB_KEY_RELEASE;
    });
    return keys;
}

bool Witness::waitForInput(size_t count) {
    return waitFor([this, count] {
        readArrived();
        return std::ranges::count_if(events_, [](const Event& event) {
                   return event.type <= XCB_BUTTON_RELEASE;
               }) >= static_cast<std::ptrdiff_t>(count);
    });
}

void Witness::clear() {
    events();
    events_.clear();
}

} // namespace velmora::test

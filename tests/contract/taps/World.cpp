#include "World.h"

#include <QHash>
#include <QKeyEvent>
#include <gtest/gtest.h>
#include <xcb/xinput.h>

namespace velmora::test {
namespace {

constexpr std::pair<EventFlags, const char*> modifierKeys[] = {
    {kCGEventFlagMaskCommand, "LWIN"},
    {kCGEventFlagMaskAlternate, "LALT"},
    {kCGEventFlagMaskControl, "LCTL"},
    {kCGEventFlagMaskShift, "LFSH"}};

} // namespace

void TapUnderTest::make(EventTaps& taps, EventTapInterest interest) {
    const std::uint64_t mask = eventMaskBit(EventType::keyDown) |
                               eventMaskBit(EventType::flagsChanged) |
                               eventMaskBit(EventType::otherMouseDown);
    tap = taps.create(
        EventTapLocation::sessionEventTap, EventTapPlacement::headInsert,
        EventTapOptions::defaultTap, mask, std::move(interest),
        [this](EventType type, const TapEvent& event) -> std::optional<TapEvent> {
            if (type != EventType::tapDisabledByUserInput) {
                events.push_back(event);
                return std::nullopt;
            }
            ++refusals;
            tap->setEnabled(true);
            return event;
        });
}

std::vector<std::int64_t> TapUnderTest::pressed() const {
    std::vector<std::int64_t> pressed;
    for (const TapEvent& event : events) {
        if (event.type == EventType::keyDown)
            pressed.push_back(event.keyCode);
        else if (event.type == EventType::otherMouseDown)
            pressed.push_back(event.buttonNumber);
    }
    return pressed;
}

bool OtherProgram::takeChord(uint8_t keycode, uint32_t also) {
    const uint32_t required = XCB_MOD_MASK_1 | also;
    std::vector<uint32_t> states;
    for (uint32_t state = 0; state <= 0xff; ++state) {
        if ((state & required) == required)
            states.push_back(state);
    }
    const uint32_t mask = XCB_INPUT_XI_EVENT_MASK_KEY_PRESS;
    const Reply<xcb_input_xi_passive_grab_device_reply_t> reply(
        xcb_input_xi_passive_grab_device_reply(
            client_,
            xcb_input_xi_passive_grab_device(
                client_, XCB_CURRENT_TIME, client_.root(), XCB_CURSOR_NONE, keycode,
                inputDevice(client_, XCB_INPUT_DEVICE_TYPE_MASTER_KEYBOARD),
                static_cast<uint16_t>(states.size()), 1, XCB_INPUT_GRAB_TYPE_KEYCODE,
                XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_MODE_22_ASYNC,
                XCB_INPUT_GRAB_OWNER_NO_OWNER, &mask, states.data()),
            nullptr));
    return reply && reply->num_modifiers == 0;
}

bool OtherProgram::takeButton(uint8_t button, uint16_t modifiers) {
    const Reply<xcb_generic_error_t> error(xcb_request_check(
        client_,
        xcb_grab_button_checked(
            client_, false, client_.root(), XCB_EVENT_MASK_BUTTON_PRESS, XCB_GRAB_MODE_ASYNC,
            XCB_GRAB_MODE_ASYNC, XCB_WINDOW_NONE, XCB_CURSOR_NONE, button, modifiers)));
    return !error;
}

bool OtherProgram::takeKeyboard() {
    const Reply<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(
        client_,
        xcb_grab_keyboard(
            client_, false, client_.root(), XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC,
            XCB_GRAB_MODE_ASYNC),
        nullptr));
    return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

bool OtherProgram::takePointer() {
    const Reply<xcb_grab_pointer_reply_t> reply(xcb_grab_pointer_reply(
        client_,
        xcb_grab_pointer(
            client_, false, client_.root(), XCB_EVENT_MASK_BUTTON_PRESS, XCB_GRAB_MODE_ASYNC,
            XCB_GRAB_MODE_ASYNC, XCB_WINDOW_NONE, XCB_CURSOR_NONE, XCB_CURRENT_TIME),
        nullptr));
    return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

/// Writes down the keys that Qt itself hands to our window.
class World::View : public QWidget {
public:
    std::vector<std::uint32_t> keycodes;

protected:
    void keyPressEvent(QKeyEvent* event) override { keycodes.push_back(event->nativeScanCode()); }
    bool focusNextPrevChild(bool) override { return false; }
};

World::World() {
    driver.move(200, 300);
}

World::~World() = default;

void World::waitForPress(size_t before, const TapUnderTest& tap) {
    EXPECT_TRUE(waitFor([&] { return arrived(tap) > before; })) << "a press got lost";
}

void World::type(const Key& key, EventFlags flags, const TapUnderTest& tap) {
    Driver hand; // lets go of the modifiers at the end
    for (const auto& [flag, modifier] : modifierKeys) {
        if (flags & flag)
            hand.pressKey(modifier);
    }
    const size_t before = arrived(tap);
    driver.pressKey(key.name);
    waitForPress(before, tap);
    driver.releaseKey(key.name);
}

void World::click(std::int64_t number, const TapUnderTest& tap) {
    const size_t before = arrived(tap);
    driver.pressButton(xButton(number));
    waitForPress(before, tap);
    driver.releaseButton(xButton(number));
}

bool World::isAnyButtonDown() const {
    const Reply<xcb_input_xi_query_pointer_reply_t> reply(xcb_input_xi_query_pointer_reply(
        client,
        xcb_input_xi_query_pointer(
            client, client.root(), inputDevice(client, XCB_INPUT_DEVICE_TYPE_MASTER_POINTER)),
        nullptr));
    const uint32_t* buttons = xcb_input_xi_query_pointer_buttons(reply.get());
    return std::any_of(
        buttons, buttons + xcb_input_xi_query_pointer_buttons_length(reply.get()),
        [](uint32_t bits) { return bits != 0; });
}

std::vector<std::int64_t> World::reachedFront() {
    static const QHash<int, std::int64_t> numbers{{1, 0}, {3, 1}, {2, 2}, {8, 3}, {9, 4}, {10, 5}};
    std::vector<std::int64_t> presses;
    const auto addKey = [&](std::uint32_t keycode) {
        for (const Key& key : {keyA, keyM, keyE, keyTab, keyEscape, keyF5, keypad1}) {
            if (driver.keycode(key.name) == keycode)
                presses.push_back(key.code);
        }
    };
    for (const Witness::Event& event : witness.events()) {
        if (event.type == XCB_KEY_PRESS)
            addKey(event.detail);
        else if (event.type == XCB_BUTTON_PRESS)
            presses.push_back(numbers.value(event.detail));
    }
    if (view_) {
        for (const std::uint32_t keycode : view_->keycodes)
            addKey(keycode);
    }
    return presses;
}

QWidget& World::focusedView() {
    if (!view_) {
        view_ = std::make_unique<View>();
        view_->setFocusPolicy(Qt::StrongFocus);
        view_->setGeometry(700, 300, 300, 200);
        view_->show();
        view_->setFocus();
    }
    // A window manager that has just taken over gives the focus anew: it has to agree.
    EXPECT_TRUE(waitFor([this] {
        const auto id = static_cast<xcb_window_t>(view_->winId());
        const bool isInFront = inputFocus(client) == id && activeWindow(client) == id;
        if (!isInFront)
            view_->activateWindow();
        return isInFront && view_->hasFocus();
    })) << "no focus";
    return *view_;
}

TapsTest::~TapsTest() {
    lockModifiers(world.client, 0xff, false);
    lockGroup(world.client, 0);
    EXPECT_FALSE(isAnythingDown(world.client));
}

void TapsTest::makeEnabled(EventTapInterest interest) {
    tap.make(world.taps(), std::move(interest));
    ASSERT_TRUE(tap.tap);
    tap.tap->setEnabled(true);
}

} // namespace velmora::test

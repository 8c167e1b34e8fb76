#include "X11World.h"

#include "support/TestDisplay.h"

#include <QHash>
#include <QKeyEvent>
#include <xcb/xinput.h>

namespace velmora::test {
namespace {

constexpr std::pair<EventFlags, const char*> modifierKeys[] = {
    {command, "LWIN"}, {option, "LALT"}, {control, "LCTL"}, {shift, "LFSH"}};

} // namespace

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
class X11World::View : public QWidget {
public:
    std::vector<std::pair<uint8_t, std::uint32_t>> keys; ///< type and keycode

protected:
    void keyPressEvent(QKeyEvent* event) override {
        keys.emplace_back(XCB_KEY_PRESS, event->nativeScanCode());
    }
    void keyReleaseEvent(QKeyEvent* event) override {
        keys.emplace_back(XCB_KEY_RELEASE, event->nativeScanCode());
    }
    bool focusNextPrevChild(bool) override { return false; }
};

X11World::X11World() {
    connection->startDelivery();
    driver.move(200, 300);
}

X11World::~X11World() {
    lockModifiers(client, 0xff, false);
    lockGroup(client, 0);
    EXPECT_FALSE(isAnythingDown(client));
    EXPECT_FALSE(isAnyButtonDown());
}

QWidget& X11World::focusedView() {
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

void X11World::hold(
    const Key& key, EventFlags flags, bool repeats, const std::function<bool()>& enough) {
    const uint32_t mode = repeats ? XCB_AUTO_REPEAT_MODE_ON : XCB_AUTO_REPEAT_MODE_OFF;
    xcb_change_keyboard_control(client, XCB_KB_AUTO_REPEAT_MODE, &mode);
    client.sync();
    Driver hand; // lets go of the modifiers at the end
    for (const auto& [flag, modifier] : modifierKeys) {
        if (flags & flag)
            hand.pressKey(modifier);
    }
    driver.pressKey(key.name);
    EXPECT_TRUE(waitFor(enough)) << "a press got lost";
    settle();
    driver.releaseKey(key.name);
}

void X11World::click(std::int64_t number) {
    const size_t before = arrived();
    driver.pressButton(xButton(number));
    EXPECT_TRUE(waitFor([&] { return arrived() > before; })) << "a press got lost";
    settle();
    driver.releaseButton(xButton(number));
}

void X11World::settle() const {
    Reply<xcb_get_input_focus_reply_t>(
        xcb_get_input_focus_reply(*connection, xcb_get_input_focus(*connection), nullptr));
}

bool X11World::isAnyButtonDown() const {
    const Reply<xcb_input_xi_query_pointer_reply_t> reply(xcb_input_xi_query_pointer_reply(
        client,
        xcb_input_xi_query_pointer(
            client, client.root(), inputDevice(client, XCB_INPUT_DEVICE_TYPE_MASTER_POINTER)),
        nullptr));
    const uint32_t* masks = xcb_input_xi_query_pointer_buttons(reply.get());
    return std::any_of(
        masks, masks + xcb_input_xi_query_pointer_buttons_length(reply.get()),
        [](uint32_t bits) { return bits != 0; });
}

std::vector<std::int64_t> X11World::inFront(uint8_t type) {
    static const QHash<int, std::int64_t> numbers{{1, 0}, {3, 1}, {2, 2}, {8, 3}, {9, 4}, {10, 5}};
    std::vector<std::int64_t> codes;
    const auto addKey = [&](std::uint32_t keycode) {
        for (const Key& key : {keyA, keyM, keyE, keyTab, keyEscape, keyF5, keypad1}) {
            if (driver.keycode(key.name) == keycode)
                codes.push_back(key.code);
        }
    };
    const int buttonType = type == XCB_KEY_PRESS ? XCB_BUTTON_PRESS : XCB_BUTTON_RELEASE;
    for (const Witness::Event& event : witness.events()) {
        if (event.type == type)
            addKey(event.detail);
        else if (event.type == buttonType)
            codes.push_back(numbers.value(event.detail));
    }
    if (view_) {
        for (const auto& [keyType, keycode] : view_->keys) {
            if (keyType == type)
                addKey(keycode);
        }
    }
    return codes;
}

void X11World::otherTakes(const std::set<Input>& inputs) {
    other_.reset();
    if (inputs.empty())
        return;
    other_.emplace();
    if (inputs.contains(Input::hotKey))
        other_->takeChord(driver.keycode(keyM.name));
    if (inputs.contains(Input::mouseButton))
        other_->takeButton(xButton(3));
    if (inputs.contains(Input::everyKey))
        other_->takeKeyboard();
}

} // namespace velmora::test

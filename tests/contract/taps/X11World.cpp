#include "X11World.h"

#include <QHash>
#include <QKeyEvent>
#include <gtest/gtest.h>
#include <xcb/xinput.h>

namespace velmora::test {
namespace {

/// The first device of a type that is not XTEST's.
xcb_input_device_id_t device(const XClient& client, xcb_input_device_type_t type) {
    Reply<xcb_input_xi_query_version_reply_t>(xcb_input_xi_query_version_reply(
        client, xcb_input_xi_query_version(client, 2, 2), nullptr));
    const Reply<xcb_input_xi_query_device_reply_t> reply(xcb_input_xi_query_device_reply(
        client, xcb_input_xi_query_device(client, XCB_INPUT_DEVICE_ALL), nullptr));
    for (auto info = xcb_input_xi_query_device_infos_iterator(reply.get()); info.rem;
         xcb_input_xi_device_info_next(&info)) {
        const QByteArray name(
            xcb_input_xi_device_info_name(info.data),
            xcb_input_xi_device_info_name_length(info.data));
        if (info.data->type == type && !name.contains("XTEST"))
            return info.data->deviceid;
    }
    qFatal("the display lacks a device");
}

std::vector<QByteArray> modifierKeys(EventFlags flags) {
    std::vector<QByteArray> keys;
    for (const auto& [flag, key] :
         {std::pair(kCGEventFlagMaskCommand, "LWIN"),
          {kCGEventFlagMaskAlternate, "LALT"},
          {kCGEventFlagMaskControl, "LCTL"},
          {kCGEventFlagMaskShift, "LFSH"}}) {
        if (flags & flag)
            keys.emplace_back(key);
    }
    return keys;
}

} // namespace

void replaceWindowManager(const QString& program) {
    const XClient client;
    const auto owner = [&client] {
        return client.property(client.root(), "_NET_SUPPORTING_WM_CHECK");
    };
    const auto before = owner();
    const QString replace = QStringLiteral("--replace");
    // xfwm4 reads its settings over a bus, and ends without them. The bus ends with it.
    if (program == QStringLiteral("xfwm4"))
        display().start(
            QStringLiteral("dbus-run-session"), {QStringLiteral("--"), program, replace});
    else
        display().start(program, {replace});
    ASSERT_TRUE(waitFor([&] { return !owner().empty() && owner() != before; }));
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
                device(client_, XCB_INPUT_DEVICE_TYPE_MASTER_KEYBOARD),
                static_cast<uint16_t>(states.size()), 1, XCB_INPUT_GRAB_TYPE_KEYCODE,
                XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_MODE_22_ASYNC,
                XCB_INPUT_GRAB_OWNER_NO_OWNER, &mask, states.data()),
            nullptr));
    return reply && reply->num_modifiers == 0;
}

bool OtherProgram::takeButton(uint8_t button) {
    const Reply<xcb_generic_error_t> error(xcb_request_check(
        client_,
        xcb_grab_button_checked(
            client_, false, client_.root(), XCB_EVENT_MASK_BUTTON_PRESS, XCB_GRAB_MODE_ASYNC,
            XCB_GRAB_MODE_ASYNC, XCB_WINDOW_NONE, XCB_CURSOR_NONE, button, XCB_MOD_MASK_ANY)));
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
    std::vector<std::int64_t> keycodes;

protected:
    void keyPressEvent(QKeyEvent* event) override { keycodes.push_back(event->nativeScanCode()); }
    bool focusNextPrevChild(bool) override { return false; }
};

X11World::X11World() {
    driver.move(200, 300);
}

X11World::~X11World() = default;

void X11World::waitForPress(size_t before, const TapUnderTest& tap) {
    EXPECT_TRUE(waitFor([&] { return arrived(tap) > before; })) << "a press got lost";
}

void X11World::type(const Key& key, EventFlags flags, const TapUnderTest& tap) {
    const auto modifiers = modifierKeys(flags);
    for (const QByteArray& modifier : modifiers)
        driver.pressKey(modifier);
    const size_t before = arrived(tap);
    driver.pressKey(key.name);
    waitForPress(before, tap);
    driver.releaseKey(key.name);
    for (const QByteArray& modifier : modifiers)
        driver.releaseKey(modifier);
}

void X11World::click(std::int64_t number, const TapUnderTest& tap) {
    const size_t before = arrived(tap);
    driver.pressButton(xButton(number));
    waitForPress(before, tap);
    driver.releaseButton(xButton(number));
}

bool X11World::isAnyButtonDown() const {
    const Reply<xcb_input_xi_query_pointer_reply_t> reply(xcb_input_xi_query_pointer_reply(
        client,
        xcb_input_xi_query_pointer(
            client, client.root(), device(client, XCB_INPUT_DEVICE_TYPE_MASTER_POINTER)),
        nullptr));
    const uint32_t* buttons = xcb_input_xi_query_pointer_buttons(reply.get());
    return std::any_of(
        buttons, buttons + xcb_input_xi_query_pointer_buttons_length(reply.get()),
        [](uint32_t bits) { return bits != 0; });
}

void X11World::replugKeyboard() {
    const xcb_input_device_id_t keyboard = device(client, XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD);
    const xcb_input_device_id_t master = device(client, XCB_INPUT_DEVICE_TYPE_MASTER_KEYBOARD);
    // One change as the protocol lays it out, with its device's new master or none.
    struct Change {
        xcb_input_hierarchy_change_t header;
        uint16_t device;
        uint16_t master;
    };
    for (const Change& change :
         {Change{{XCB_INPUT_HIERARCHY_CHANGE_TYPE_DETACH_SLAVE, 2}, keyboard, 0},
          Change{{XCB_INPUT_HIERARCHY_CHANGE_TYPE_ATTACH_SLAVE, 2}, keyboard, master}}) {
        const Reply<xcb_generic_error_t> error(xcb_request_check(
            client, xcb_input_xi_change_hierarchy_checked(client, 1, &change.header)));
        EXPECT_FALSE(error);
    }
}

std::vector<std::int64_t> X11World::reachedFront() {
    static const QHash<int, std::int64_t> codes = [this] {
        QHash<int, std::int64_t> map;
        for (const Key& key : {keyA, keyM, keyE, keyTab, keyEscape, keyF5, keypad1})
            map.insert(driver.keycode(key.name), key.code);
        return map;
    }();
    static const QHash<int, std::int64_t> numbers{{1, 0}, {3, 1}, {2, 2}, {8, 3}, {9, 4}, {10, 5}};
    std::vector<std::int64_t> presses;
    for (const Witness::Event& event : witness.events()) {
        if (event.type == XCB_KEY_PRESS && codes.contains(event.detail))
            presses.push_back(codes.value(event.detail));
        else if (event.type == XCB_BUTTON_PRESS)
            presses.push_back(numbers.value(event.detail));
    }
    if (view_) {
        for (const std::int64_t keycode : view_->keycodes) {
            if (codes.contains(static_cast<int>(keycode)))
                presses.push_back(codes.value(static_cast<int>(keycode)));
        }
    }
    return presses;
}

void X11World::holdElsewhere(bool hold) {
    chordHolder_.reset();
    if (!hold)
        return;
    chordHolder_ = std::make_unique<OtherProgram>();
    EXPECT_TRUE(chordHolder_->takeChord(driver.keycode(keyM.name)));
    for (const std::int64_t number : {2, 3, 4})
        EXPECT_TRUE(chordHolder_->takeButton(xButton(number)));
}

void X11World::holdKeyboardElsewhere(bool hold) {
    keyboardHolder_.reset();
    if (!hold)
        return;
    keyboardHolder_ = std::make_unique<OtherProgram>();
    EXPECT_TRUE(keyboardHolder_->takeKeyboard());
}

QWidget& X11World::focusedView() {
    if (!view_) {
        view_ = std::make_unique<View>();
        view_->setFocusPolicy(Qt::StrongFocus);
        view_->setGeometry(700, 300, 300, 200);
        view_->show();
        view_->activateWindow();
        view_->setFocus();
        EXPECT_TRUE(waitFor([this] {
            if (inputFocus(client) != view_->winId())
                view_->activateWindow();
            return view_->hasFocus() && inputFocus(client) == view_->winId();
        })) << "no focus";
    }
    return *view_;
}

std::unique_ptr<World> makeX11World() {
    return std::make_unique<X11World>();
}

} // namespace velmora::test

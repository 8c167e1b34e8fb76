#pragma once

#include "World.h"
#include "platform/x11/grants/X11InputGrants.h"
#include "platform/x11/keyboard/X11Keyboard.h"
#include "support/Desktop.h"
#include "support/Driver.h"
#include "support/Witness.h"

#include <optional>

namespace velmora::test {

/// A program on the display, with grants that nobody listens to.
struct OtherProgram {
    std::unique_ptr<X11Connection> connection = X11Connection::open();
    X11Keyboard keyboard{*connection};
    X11InputGrants grants{*connection, keyboard};
    std::vector<std::unique_ptr<InputGrant>> held;

    /// False when it has to wait for it.
    bool take(Input input, QWidget& view, const Chord& chord = optionM) {
        held.push_back(
            input == Input::hotKey     ? grants.hotKey(chord, {})
            : input == Input::everyKey ? grants.everyKey(view, {})
                                       : grants.mouseButton(3, {}));
        return held.back()->state() == InputGrant::State::granted;
    }
};

/// The display: the hands are another client, the application in front is one too. Fails if a test
/// leaves a key or button down.
class X11World final : public World {
public:
    X11World() {
        connection->startDelivery();
        driver.move(200, 300);
        // Beside the window manager: the front keeps the focus.
        view.setWindowFlag(Qt::BypassWindowManagerHint);
        view.setGeometry(700, 300, 300, 200);
        view.show();
    }
    ~X11World() override {
        lockModifiers(client, 0xff, false);
        lockGroup(client, 0);
        // The window manager looks at a click first, and holds up its release meanwhile.
        EXPECT_TRUE(waitFor([this] { return !isAnythingDown(client); }));
        const KeyboardState state = keyboardState(client);
        EXPECT_EQ(state.base | state.latched | state.locked, 0);
    }

    /// The X button that stands for a button's number.
    static constexpr uint8_t xButton(std::int64_t number) {
        return static_cast<uint8_t>(number == 0 ? 1 : number == 2 ? 2 : number + 5);
    }

    InputGrants& grants() override { return grants_; }
    void hold(const Key& key, EventFlags flags, bool repeats, const std::function<bool()>& enough)
        override {
        const uint32_t mode = repeats ? XCB_AUTO_REPEAT_MODE_ON : XCB_AUTO_REPEAT_MODE_OFF;
        xcb_change_keyboard_control(client, XCB_KB_AUTO_REPEAT_MODE, &mode);
        client.sync();
        Driver hand; // lets go of the modifiers at the end
        for (const auto& [flag, modifier] :
             {std::pair(command, "LWIN"), {option, "LALT"}, {control, "LCTL"}, {shift, "LFSH"}}) {
            if (flags & flag)
                hand.pressKey(modifier);
        }
        driver.pressKey(key.name);
        EXPECT_TRUE(waitFor(enough)) << "a press got lost";
        settle();
        driver.releaseKey(key.name);
    }
    void click(std::int64_t number) override {
        const size_t before = arrived();
        driver.pressButton(xButton(number));
        EXPECT_TRUE(waitFor([&] { return arrived() > before; })) << "a press got lost";
        settle();
        driver.releaseButton(xButton(number));
    }
    std::vector<std::int64_t> pressedInFront() override {
        return inFront(XCB_KEY_PRESS, XCB_BUTTON_PRESS);
    }
    std::vector<std::int64_t> releasedInFront() override {
        return inFront(XCB_KEY_RELEASE, XCB_BUTTON_RELEASE);
    }
    void otherTakes(const std::set<Input>& inputs) override {
        other.emplace();
        for (const Input input : inputs)
            other->take(input, view);
    }

    /// Returns when the server has done what the grants asked for: a release that comes then finds
    /// free what was let go of at the press.
    void settle() const {
        Reply<xcb_get_input_focus_reply_t>(
            xcb_get_input_focus_reply(*connection, xcb_get_input_focus(*connection), nullptr));
    }

    XClient client;
    Witness witness;
    Driver driver;
    std::unique_ptr<X11Connection> connection = X11Connection::open();
    X11Keyboard keyboard{*connection};
    std::optional<OtherProgram> other;

private:
    std::vector<std::int64_t> inFront(uint8_t keyType, uint8_t buttonType) {
        std::vector<std::int64_t> codes;
        for (const Witness::Event& event : witness.events()) {
            for (const Key& key : {keyA, keyM, keyE, keyTab, keyEscape, keyF5, keypad1}) {
                if (event.type == keyType && event.detail == driver.keycode(key.name))
                    codes.push_back(key.code);
            }
            for (const std::int64_t number : {0, 2, 3, 4, 5}) {
                if (event.type == buttonType && event.detail == xButton(number))
                    codes.push_back(number);
            }
        }
        return codes;
    }

    X11InputGrants grants_{*connection, keyboard};
};

} // namespace velmora::test

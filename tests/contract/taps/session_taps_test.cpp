// Taps among locks, layouts, window managers and other programs.

#include "World.h"
#include "platform/x11/grants/X11ChordGrab.h"
#include "platform/x11/grants/X11MouseButtonGrab.h"

#include <QApplication>
#include <QProcess>
#include <xcb/xinput.h>
#include <xcb/xtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;
using testing::ElementsAre;

namespace {

constexpr EventFlags option = kCGEventFlagMaskAlternate;

TEST_F(TapsTest, TheChordFollowsItsKeyAndItsModifier) {
    // Super and Alt change places; the arrow keys send other keycodes on older keyboards.
    makeEnabled(TapInterest::Chord{123, option});
    for (const auto& [arguments, modifier] :
         {std::pair(QStringList{u"-option"_s, u"altwin:swap_alt_win"_s}, "LWIN"),
          {{u"-option"_s}, "LALT"},
          {{u"-keycodes"_s, u"xfree86"_s}, "LALT"},
          {{u"-keycodes"_s, u"evdev"_s}, "LALT"}}) {
        EXPECT_EQ(QProcess::execute(u"setxkbmap"_s, arguments), 0);
        tap.events.clear();
        EXPECT_TRUE(waitFor([&, held = modifier] {
            Driver().tapChord(held, "LEFT"); // reads afresh where the keys are
            return waitFor([&] { return tap.presses() > 0; }, 100);
        })) << qPrintable(arguments.join(u' '));
    }
}

TEST_F(TapsTest, AHeldChordRepeats) {
    EXPECT_EQ(QProcess::execute(u"xset"_s, {u"r"_s, u"rate"_s, u"100"_s, u"50"_s}), 0);
    makeEnabled(optionM);
    world.driver.pressKey("LALT");
    world.driver.pressKey(keyM.name);
    EXPECT_TRUE(waitFor([this] { return tap.presses() >= 4; }));
    world.driver.releaseKey(keyM.name);
    world.driver.releaseKey("LALT");
    EXPECT_EQ(QProcess::execute(u"xset"_s, {u"r"_s, u"rate"_s}), 0);
}

TEST_F(TapsTest, ATryThatIsRefusedCostsFewRequests) {
    const auto connection = X11Connection::open();
    const X11Keyboard keyboard(*connection);
    X11ChordGrab chord(*connection, keyboard, *XInput::find(*connection), optionM, {});
    X11MouseButtonGrab button(*connection, keyboard, TapInterest::MouseButtons{{3}}, {});
    OtherProgram holder;
    EXPECT_TRUE(holder.takeChord(world.driver.keycode(keyM.name)) && holder.takeButton(8));
    for (const auto& [grab, limit] :
         {std::pair<X11Grab*, unsigned>{&chord, 1}, std::pair<X11Grab*, unsigned>{&button, 40}}) {
        EXPECT_FALSE(grab->obtain());
        EXPECT_FALSE(grab->refusedName().isEmpty());
        const unsigned before = xcb_no_operation(*connection).sequence;
        EXPECT_FALSE(grab->obtain());
        EXPECT_FALSE(grab->refusedName().isEmpty());
        EXPECT_LE(xcb_no_operation(*connection).sequence - before - 1, limit);
    }
}

TEST_F(TapsTest, AHandlerThatIsSlowFreezesNobody) {
    makeEnabled(TapInterest::MouseButtons{{3}});
    // The tap's process does nothing from here on; the hands and the front go on.
    world.driver.pressButton(8);
    world.driver.tapKey(keyA.name);
    world.driver.releaseButton(8);
    world.driver.click(1);
    EXPECT_EQ(world.witness.keys().size(), 2U);
    EXPECT_TRUE(waitFor([this] { return tap.presses() == 1; }));
    // The window manager looks at the click first, and holds up its release meanwhile.
    EXPECT_TRUE(waitFor([this] { return !isAnythingDown(world.client); }));
}

TEST_F(TapsTest, WorksBesideAnotherProgramsUseWithOtherModifiers) {
    std::optional<OtherProgram> program(std::in_place);
    // Option+Shift+M of a window manager that uses XInput 2: ours is the rest.
    EXPECT_TRUE(program->takeChord(world.driver.keycode(keyM.name), XCB_MOD_MASK_SHIFT));
    EXPECT_TRUE(program->takeButton(xButton(3), XCB_MOD_MASK_CONTROL));
    makeEnabled(optionM);
    type(keyM, option);
    EXPECT_THAT(tap.pressed(), ElementsAre(keyM.code));
    TapUnderTest button;
    button.make(world.taps(), TapInterest::MouseButtons{{3}});
    button.tap->setEnabled(true);
    for (const bool isLocked : {false, true}) {
        lockModifiers(world.client, XCB_MOD_MASK_LOCK, isLocked);
        world.click(3, button);
    }
    EXPECT_THAT(button.pressed(), ElementsAre(3, 3));
    // Ours, too, from the next press on, once that program is gone.
    program.reset();
    EXPECT_TRUE(waitFor([&] {
        type(keyM, option);
        const size_t before = tap.presses();
        type(keyM, option | kCGEventFlagMaskShift);
        return tap.presses() > before;
    }));
    // Given back as a whole: another program can have all of it.
    button.tap.reset();
    EXPECT_TRUE(waitFor([&] { return OtherProgram().takeButton(xButton(3), 0); }));
    EXPECT_EQ(tap.refusals + button.refusals, 0);
}

TEST_F(TapsTest, CaptureChangesNoFocusAndGivesLayoutLetters) {
    QWidget& view = world.focusedView();
    int focusChanges = 0;
    QObject::connect(qApp, &QApplication::focusChanged, &view, [&] { ++focusChanges; });
    makeEnabled(TapInterest::EveryKey{&view});
    for (const auto& [layout, text] :
         {std::pair(u"us"_s, u"q"_s), {u"fr"_s, u"a"_s}, {u"ru"_s, u"й"_s}, {u"us"_s, u"q"_s}}) {
        setLayout(layout);
        EXPECT_TRUE(waitFor([&] {
            tap.events.clear();
            world.driver.tapKey("AD01");
            return waitFor([this] { return tap.presses() == 1; }, 100) &&
                   tap.events[0].charactersIgnoringModifiers == text;
        })) << qPrintable(layout);
    }
    world.driver.pressKey("LFSH");
    world.type(keyA, 0, tap);
    world.driver.releaseKey("LFSH");
    EXPECT_EQ(tap.events.back().charactersIgnoringModifiers, u"A"_s);
    tap.tap.reset();
    world.type(keyA, 0, tap);
    EXPECT_EQ(focusChanges, 0);
    EXPECT_TRUE(view.hasFocus());
}

/// A second user at the same screen: master devices of their own, and what XTEST types on there.
class SecondUser {
public:
    SecondUser() {
        struct {
            uint16_t type = XCB_INPUT_HIERARCHY_CHANGE_TYPE_ADD_MASTER;
            uint16_t length = 4;
            uint16_t nameLength = 6;
            uint8_t sendsCore = 1;
            uint8_t isEnabled = 1;
            char name[8] = "second";
        } add;
        Reply<xcb_input_xi_query_version_reply_t>(xcb_input_xi_query_version_reply(
            client_, xcb_input_xi_query_version(client_, 2, 2), nullptr));
        xcb_input_xi_change_hierarchy(
            client_, 1, reinterpret_cast<const xcb_input_hierarchy_change_t*>(&add));
    }
    ~SecondUser() {
        xcb_input_remove_master_t remove{};
        remove.type = XCB_INPUT_HIERARCHY_CHANGE_TYPE_REMOVE_MASTER;
        remove.len = sizeof remove / 4;
        remove.deviceid = device("second pointer");
        remove.return_mode = XCB_INPUT_CHANGE_MODE_FLOAT;
        xcb_input_xi_change_hierarchy(
            client_, 1, reinterpret_cast<const xcb_input_hierarchy_change_t*>(&remove));
        client_.sync();
    }
    void chord(const Driver& keys, bool isDown) {
        const int type = isDown ? XCB_INPUT_DEVICE_KEY_PRESS : XCB_INPUT_DEVICE_KEY_RELEASE;
        for (const char* name : {"LALT", keyM.name})
            send(type, keys.keycode(name), "second XTEST keyboard");
    }
    /// Pixels from the screen's top-left corner.
    void move(int16_t x, int16_t y) {
        xcb_input_xi_warp_pointer(
            client_, 0, client_.root(), 0, 0, 0, 0, x << 16, y << 16, device("second pointer"));
        client_.sync();
    }
    void button(uint8_t button, bool isDown) {
        send(
            isDown ? XCB_INPUT_DEVICE_BUTTON_PRESS : XCB_INPUT_DEVICE_BUTTON_RELEASE, button,
            "second XTEST pointer");
    }

private:
    void send(int type, uint8_t detail, const char* name) {
        const auto first = xcb_get_extension_data(client_, &xcb_input_id)->first_event;
        xcb_test_fake_input(
            client_, static_cast<uint8_t>(first + type), detail, 0, 0, 0, 0, device(name));
        client_.sync();
    }
    uint8_t device(const QByteArray& name) const {
        const Reply<xcb_input_xi_query_device_reply_t> reply(xcb_input_xi_query_device_reply(
            client_, xcb_input_xi_query_device(client_, XCB_INPUT_DEVICE_ALL), nullptr));
        for (auto info = xcb_input_xi_query_device_infos_iterator(reply.get()); info.rem;
             xcb_input_xi_device_info_next(&info)) {
            if (name == QByteArray(
                            xcb_input_xi_device_info_name(info.data),
                            xcb_input_xi_device_info_name_length(info.data)))
                return static_cast<uint8_t>(info.data->deviceid);
        }
        qFatal("no %s", name.constData());
    }

    XClient client_;
};

TEST_F(TapsTest, ASecondUsersKeyboardAndMouseCountAsWell) {
    TapUnderTest buttons;
    buttons.make(world.taps(), TapInterest::MouseButtons{{3}});
    buttons.tap->setEnabled(true);
    for (const bool isThereFirst : {false, true}) {
        SCOPED_TRACE(isThereFirst);
        std::optional<SecondUser> user;
        if (isThereFirst)
            user.emplace();
        makeEnabled(optionM);
        if (!isThereFirst)
            user.emplace();
        user->move(200, 300);
        for (size_t press = 1; press <= 2; ++press) {
            user->chord(world.driver, true);
            EXPECT_TRUE(waitFor([&] { return tap.presses() == press; }, 1000));
            user->chord(world.driver, false);
            world.witness.clear();
            user->button(xButton(3), true);
            EXPECT_TRUE(waitFor([&] { return buttons.presses() == press; }, 1000));
            user->button(xButton(3), false);
            EXPECT_TRUE(world.witness.waitForInput(1));
            EXPECT_EQ(world.witness.events().at(0).type, XCB_BUTTON_RELEASE);
        }
        type(keyM, option);
        EXPECT_EQ(tap.presses(), 3U);
        world.click(3, buttons);
        EXPECT_EQ(buttons.presses(), 3U);
        tap.events.clear();
        buttons.events.clear();
    }
}

} // namespace

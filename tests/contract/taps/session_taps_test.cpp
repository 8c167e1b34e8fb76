// Taps among locks, layouts, window managers and other programs.

#include "World.h"

#include <QEvent>
#include <QProcess>
#include <xcb/xinput.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;
using testing::IsEmpty;

namespace {

constexpr EventFlags option = kCGEventFlagMaskAlternate;

TEST_F(TapsTest, TheChordFollowsItsKeyAndItsModifier) {
    const auto pressed = [this](const char* modifier, const char* key) {
        // Reads afresh where the keys are.
        Driver hands;
        const size_t before = tap.presses();
        hands.tapChord(modifier, key);
        return waitFor([&] { return tap.presses() > before; }, 100);
    };
    const auto setxkbmap = [](const QStringList& arguments) {
        EXPECT_EQ(QProcess::execute(u"setxkbmap"_s, arguments), 0);
    };
    makeEnabled(optionM);
    EXPECT_TRUE(pressed("LALT", keyM.name));
    EXPECT_FALSE(pressed("LWIN", keyM.name));
    setxkbmap({u"-option"_s, u"altwin:swap_alt_win"_s});
    EXPECT_TRUE(waitFor([&] { return pressed("LWIN", keyM.name); }));
    EXPECT_FALSE(pressed("LALT", keyM.name));
    setxkbmap({u"-option"_s});
    EXPECT_TRUE(waitFor([&] { return pressed("LALT", keyM.name); }));
    EXPECT_FALSE(pressed("LWIN", keyM.name));

    // The arrow keys send other keycodes on older keyboards.
    tap.tap->setInterest(TapInterest::Chord{123, option});
    EXPECT_FALSE(pressed("LALT", keyM.name));
    EXPECT_TRUE(pressed("LALT", "LEFT"));
    const uint8_t usual = Driver().keycode("LEFT");
    setxkbmap({u"-keycodes"_s, u"xfree86"_s});
    EXPECT_NE(Driver().keycode("LEFT"), usual);
    EXPECT_TRUE(waitFor([&] { return pressed("LALT", "LEFT"); }));
    setxkbmap({u"-keycodes"_s, u"evdev"_s});
    EXPECT_TRUE(waitFor([&] { return pressed("LALT", "LEFT"); }));
}

TEST_F(TapsTest, AHeldChordRepeatsAndThePlainKeyIsFreeAgain) {
    EXPECT_EQ(QProcess::execute(u"xset"_s, {u"r"_s, u"rate"_s, u"100"_s, u"50"_s}), 0);
    makeEnabled(optionM);
    world.driver.pressKey("LALT");
    world.driver.pressKey(keyM.name);
    EXPECT_TRUE(waitFor([this] { return tap.presses() >= 4; }));
    world.driver.releaseKey(keyM.name);
    world.driver.releaseKey("LALT");
    EXPECT_THAT(world.reachedFront(), IsEmpty());
    EXPECT_EQ(QProcess::execute(u"xset"_s, {u"r"_s, u"rate"_s}), 0);
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

TEST_F(TapsTest, ATapWorksBesideAnotherProgramsLongerChord) {
    // Twice: the first key after others on another keyboard changes the keyboard, and that alone
    // makes the tap ask again.
    for (int round = 0; round < 2; ++round) {
        SCOPED_TRACE(round);
        tap = {};
        // Option+Shift+M of a window manager that uses XInput 2: ours is the rest.
        std::optional<OtherProgram> program(std::in_place);
        EXPECT_TRUE(waitFor([&] {
            return program->takeChord(world.driver.keycode(keyM.name), XCB_MOD_MASK_SHIFT);
        }));
        makeEnabled(optionM);
        EXPECT_TRUE(tap.tap->isEnabled());
        type(keyM, option);
        EXPECT_EQ(tap.presses(), 1U);
        EXPECT_EQ(tap.refusals, 0);

        // Ours, too, from the next press on, once that program is gone.
        program.reset();
        EXPECT_TRUE(waitFor([&] {
            type(keyM, option);
            const size_t before = tap.presses();
            type(keyM, option | kCGEventFlagMaskShift);
            return tap.presses() > before;
        }));
    }
}

TEST_F(TapsTest, AButtonWorksBesideAnotherProgramsUseOfItWithAModifier) {
    OtherProgram program;
    EXPECT_TRUE(program.takeButton(xButton(3), XCB_MOD_MASK_CONTROL));
    makeEnabled(TapInterest::MouseButtons{{3}});
    EXPECT_TRUE(tap.tap->isEnabled());
    click(3);
    lockModifiers(world.client, XCB_MOD_MASK_LOCK, true);
    click(3);
    lockModifiers(world.client, XCB_MOD_MASK_LOCK, false);
    EXPECT_EQ(tap.presses(), 2U);
    // Given back as a whole: another program can have all of it.
    tap.tap.reset();
    EXPECT_TRUE(waitFor([&] { return OtherProgram().takeButton(xButton(3), 0); }));
    EXPECT_EQ(tap.refusals, 0);
}

TEST_F(TapsTest, CaptureChangesNoFocusAndGivesLayoutLetters) {
    QWidget& view = world.focusedView();
    struct FocusCounter : QObject {
        int events = 0;
        bool eventFilter(QObject*, QEvent* event) override {
            if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
                ++events;
            return false;
        }
    } counter;
    view.installEventFilter(&counter);
    makeEnabled(TapInterest::EveryKey{&view});
    for (const auto& [layout, text] :
         {std::pair(u"us"_s, u"q"_s), {u"fr"_s, u"a"_s}, {u"ru"_s, u"й"_s}, {u"us"_s, u"q"_s}}) {
        setLayout(layout);
        EXPECT_TRUE(waitFor([&] {
            tap.events.clear();
            world.driver.tapKey("AD01");
            waitFor([this] { return tap.presses() == 1; }, 100);
            return tap.presses() == 1 && tap.events[0].charactersIgnoringModifiers == text;
        })) << qPrintable(layout);
    }
    world.driver.pressKey("LFSH");
    world.type(keyA, 0, tap);
    world.driver.releaseKey("LFSH");
    EXPECT_EQ(tap.events.back().charactersIgnoringModifiers, u"A"_s);
    tap.tap.reset();
    world.type(keyA, 0, tap);
    EXPECT_EQ(counter.events, 0);
    EXPECT_TRUE(view.hasFocus());
}

TEST_F(TapsTest, KeysHeldWhileACaptureBeginsOrEndsAreNotStuck) {
    QWidget& view = world.focusedView();
    world.driver.pressKey("LALT");
    makeEnabled(TapInterest::EveryKey{&view});
    world.driver.releaseKey("LALT");
    world.driver.pressKey("LWIN");
    world.driver.pressKey(keyA.name);
    tap.tap->setEnabled(false);
    EXPECT_TRUE(waitFor([this] { return world.isKeyboardFree(); }, 100));
    world.driver.releaseKey(keyA.name);
    world.driver.releaseKey("LWIN");
    EXPECT_FALSE(isAnythingDown(world.client));
    EXPECT_EQ(keyboardState(world.client).modifiers, 0);
}

TEST_F(TapsTest, CaptureComesBeforeTheWindowManagersKeys) {
    makeCapture();
    ASSERT_TRUE(waitFor([this] { return !world.isKeyboardFree(); }));
    for (const auto& [key, flags] :
         {std::pair(keyTab, option),
          {keyEscape, option},
          {keyE, kCGEventFlagMaskCommand},
          {keyTab, EventFlags(0)}}) {
        tap.events.clear();
        type(key, flags);
        EXPECT_EQ(tap.presses(), 1U) << key.name;
    }
    EXPECT_TRUE(world.focusedView().hasFocus());
}

} // namespace

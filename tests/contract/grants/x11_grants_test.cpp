// Grants of an X server among locks, layouts and other programs.

#include "X11World.h"

#include <QApplication>
#include <QProcess>
#include <QWindow>
#include <array>
#include <random>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;
using testing::ElementsAre;
using State = InputGrant::State;

namespace {

struct X11Grants : testing::Test {
    X11World world;
};

TEST_F(X11Grants, TheHotKeyFollowsItsKeyAndItsModifier) {
    // Super and Alt change places; the arrow keys send other keycodes on older keyboards.
    const auto grant = world.hotKey({123, option});
    for (const auto& [arguments, modifier] :
         {std::pair(QStringList{u"-option"_s, u"altwin:swap_alt_win"_s}, "LWIN"),
          {{u"-option"_s}, "LALT"},
          {{u"-keycodes"_s, u"xfree86"_s}, "LALT"},
          {{u"-keycodes"_s, u"evdev"_s}, "LALT"}}) {
        EXPECT_EQ(QProcess::execute(u"setxkbmap"_s, arguments), 0);
        world.hotKeys.clear();
        EXPECT_TRUE(waitFor([&, held = modifier] {
            Driver().tapChord(held, "LEFT"); // reads afresh where the keys are
            return waitFor([&] { return !world.hotKeys.empty(); }, 100);
        })) << qPrintable(arguments.join(u' '));
    }
}

TEST_F(X11Grants, AHandlerThatIsSlowFreezesNobody) {
    const auto grant = world.button(3);
    // This process does nothing from here on; the hands and the front go on.
    world.driver.pressButton(8);
    world.driver.tapKey(keyA.name);
    world.driver.releaseButton(8);
    world.driver.click(1);
    EXPECT_EQ(world.witness.keys().size(), 2U);
    EXPECT_TRUE(waitFor([this] { return world.buttons.size() == 1; }));
    // The window manager looks at the click first, and holds up its release meanwhile.
    EXPECT_TRUE(waitFor([this] { return !isAnythingDown(world.client); }));
}

TEST_F(X11Grants, WorkBesideAnotherProgramsUseWithOtherModifiers) {
    std::optional<OtherProgram> program(std::in_place);
    // Option+Shift+M of a window manager that uses XInput 2: ours is the rest.
    EXPECT_TRUE(program->take(Input::hotKey, world.view, {keyM.code, option | shift}));
    EXPECT_FALSE(xcb_request_check(
        *program->connection,
        xcb_grab_button_checked(
            *program->connection, false, world.client.root(), XCB_EVENT_MASK_BUTTON_PRESS,
            XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC, XCB_WINDOW_NONE, XCB_CURSOR_NONE,
            X11World::xButton(3), XCB_MOD_MASK_CONTROL)));
    const auto hotKey = world.hotKey();
    auto button = world.button(3);
    EXPECT_EQ(hotKey->state(), State::granted);
    EXPECT_EQ(button->state(), State::granted);
    for (const bool isLocked : {false, true}) {
        lockModifiers(world.client, XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2, isLocked);
        world.type(keyM, option);
        world.click(3);
    }
    EXPECT_EQ(world.hotKeys.size(), 2U);
    EXPECT_THAT(world.buttons, ElementsAre(3, 3));
    // Ours, too, from the next press on, once that program is gone.
    program.reset();
    EXPECT_TRUE(waitFor([&] {
        world.type(keyM, option);
        const size_t before = world.hotKeys.size();
        world.type(keyM, option | shift);
        return world.hotKeys.size() > before;
    }));
    // Given back as a whole: another program can have all of it.
    button.reset();
    EXPECT_TRUE(waitFor([&] { return OtherProgram().take(Input::mouseButton, world.view); }));
}

TEST_F(X11Grants, EveryKeyChangesNoFocusAndGivesTheLayoutsLetters) {
    QWidget window;
    window.show();
    window.activateWindow();
    EXPECT_TRUE(waitFor(
        [&] { return window.isActiveWindow() && inputFocus(world.client) == window.winId(); }));
    int focusChanges = 0;
    QObject::connect(qApp, &QApplication::focusWindowChanged, &window, [&] { ++focusChanges; });
    auto grant = world.grants().everyKey(
        window, [this](const KeyInput& key) { world.captured.push_back(key); });
    for (const auto& [layout, text] :
         {std::pair(u"us"_s, u"q"_s), {u"fr"_s, u"a"_s}, {u"ru"_s, u"й"_s}, {u"us"_s, u"q"_s}}) {
        setLayout(layout);
        EXPECT_TRUE(waitFor([&] {
            world.captured.clear();
            world.driver.tapKey("AD01");
            return waitFor([this] { return world.given() == 1; }, 100) &&
                   world.captured[0].charactersIgnoringModifiers == text;
        })) << qPrintable(layout);
    }
    world.captured.clear();
    world.hold(keyA, shift, false, [this] { return world.given() == 1; });
    EXPECT_EQ(world.captured.at(1).charactersIgnoringModifiers, u"A"_s);
    grant.reset();
    world.settle();
    QCoreApplication::processEvents();
    EXPECT_EQ(focusChanges, 0);
    EXPECT_TRUE(window.isActiveWindow());
}

// Whatever the user, another program and grants do in whatever order: once the hands are off, no
// key or button is down and nothing is taken.
TEST(X11GrantsAtRandom, LeaveNothingDownAndNothingTaken) {
    constexpr std::array inputs{Input::hotKey, Input::mouseButton, Input::everyKey};
    for (unsigned seed = 1; seed <= 12; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const auto pick = [&random](size_t count) { return random() % count; };
        X11World world;
        {
            std::array<std::unique_ptr<InputGrant>, 3> grants;
            constexpr std::array keys{"LALT", "LCTL", "LFSH", "AB07", "AC01", "2", "8", "9"};
            std::set<QByteArray> down;
            Driver hands; // lets go of everything first
            for (int step = 0; step < 80; ++step) {
                const size_t which = pick(inputs.size());
                switch (pick(7)) {
                default: {
                    const QByteArray key = keys[pick(keys.size())];
                    const bool wasDown = down.erase(key);
                    if (!wasDown)
                        down.insert(key);
                    if (const auto button = static_cast<uint8_t>(key.toInt()))
                        wasDown ? hands.releaseButton(button) : hands.pressButton(button);
                    else
                        wasDown ? hands.releaseKey(key) : hands.pressKey(key);
                    break;
                }
                case 4:
                case 5:
                    if (!std::exchange(grants[which], nullptr))
                        grants[which] = world.make(inputs[which]);
                    break;
                case 6:
                    if (pick(2))
                        world.otherTakes({inputs[which]});
                    else
                        world.other.reset();
                    break;
                }
                if (pick(2))
                    QCoreApplication::processEvents();
            }
        }
        world.other.reset();
        EXPECT_TRUE(waitFor([&] {
            OtherProgram newcomer;
            return std::ranges::all_of(
                inputs, [&](Input input) { return newcomer.take(input, world.view); });
        }));
        const size_t given = world.given();
        world.click(3);
        EXPECT_EQ(world.given(), given);
    }
}

} // namespace

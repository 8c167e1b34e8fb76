// The settings window of the real program: opened from the bar's menu, used by pointer and
// keyboard.

#include "session/Session.h"

#include <QSettings>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

class SettingsTest : public testing::Test {
protected:
    SettingsTest() {
        session_.display().run(u"xset"_s, {u"r"_s, u"rate"_s, u"150"_s, u"100"_s});
        session_.launch();
    }

    void key(const QByteArray& position) { session_.driver().tapKey(position); }
    void keys(std::initializer_list<QByteArray> positions) {
        for (const QByteArray& position : positions)
            key(position);
    }

    void chord(std::initializer_list<QByteArray> modifiers, const QByteArray& position) {
        for (const QByteArray& modifier : modifiers)
            session_.driver().pressKey(modifier);
        key(position);
        for (const QByteArray& modifier : modifiers)
            session_.driver().releaseKey(modifier);
    }

    /// Opens the window from the bar's menu, and gives it when it has the focus.
    xcb_window_t openSettings() {
        Driver& driver = session_.driver();
        driver.move(26, 12);
        driver.click();
        EXPECT_TRUE(waitForMenu(true));
        // By the pointer: a menu is in sight a moment before it has the keyboard. The settings are
        // the middle one of three items.
        const QPoint item = session_.menu().value_or(TopWindow{}).geometry.center();
        driver.move(item.x(), item.y());
        driver.click();
        EXPECT_TRUE(session_.waitForSettings());
        return activeWindow(session_.client());
    }

    bool waitForMenu(bool isOpen) {
        return waitFor([&] { return session_.menu().has_value() == isOpen; });
    }

    bool waitForKeyboard(bool isFree) {
        return waitFor([&] { return isKeyboardFree(session_.client()) == isFree; });
    }

    bool waitForFocus(xcb_window_t window) {
        return waitFor([&] { return inputFocus(session_.client()) == window; });
    }

    /// Waits for a sheet over `window` and gives it when it has the focus.
    xcb_window_t waitForSheet(xcb_window_t window) {
        xcb_window_t active = 0;
        EXPECT_TRUE(waitFor([&] {
            active = activeWindow(session_.client());
            return active && active != window && inputFocus(session_.client()) == active;
        }));
        return active;
    }

    /// Holds a key until `window` has come to the front and was sent some of its repeats.
    void hold(const QByteArray& position, xcb_window_t window) {
        session_.driver().pressKey(position);
        EXPECT_TRUE(waitForFocus(window));
        const XClient watcher;
        constexpr uint32_t presses = XCB_EVENT_MASK_KEY_PRESS;
        xcb_change_window_attributes(watcher, window, XCB_CW_EVENT_MASK, &presses);
        watcher.sync();
        int repeats = 0;
        EXPECT_TRUE(waitFor([&] {
            while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(watcher)})
                ++repeats;
            return repeats >= 5;
        }));
        session_.driver().releaseKey(position);
        EXPECT_EQ(activeWindow(session_.client()), window) << position.constData();
    }

    QString storedText() {
        const QSettings settings(session_.settingsFile(), QSettings::IniFormat);
        return QString::fromUtf8(settings.value(u"SavedShortcuts"_s).toByteArray());
    }
    bool waitForStored(const QString& text) {
        return waitFor([&] { return storedText().contains(text); });
    }
    bool waitForButtons(size_t count) {
        return waitFor([&] { return session_.buttons().size() == count; });
    }

    Session session_{
        {.shortcuts = QList<ShortcutButton>{
             {u"keys"_s, u"star"_s, PressKeyCombo{{u"Command"_s}, u"L"_s}},
             {u"shell"_s, u"star"_s, ExecuteShellCommand{u"true"_s}}}}};
};

TEST_F(SettingsTest, AnAddedButtonIsOnTheBarAtOnceComesBackAndOutlivesACrash) {
    ASSERT_TRUE(waitForButtons(2));
    const xcb_window_t settings = openSettings();
    keys({"TAB", "SPCE"}); // from the list to Add
    waitForSheet(settings);
    keys({"AC03", "AD09", "AB03", "AC02"});     // "docs"
    keys({"TAB", "TAB", "TAB", "TAB", "DOWN"}); // to the action's type, and open its menu
    ASSERT_TRUE(waitForMenu(true));
    keys({"DOWN", "RTRN"}); // open an address
    ASSERT_TRUE(waitForMenu(false));
    keys({"TAB", "AC02", "AD03", "RTRN"});  // "se" is none, and stays there
    keys({"AB09", "AC02", "AD03", "RTRN"}); // "se.se" is a host
    ASSERT_TRUE(session_.waitForSettings());
    ASSERT_TRUE(waitForButtons(3));
    EXPECT_TRUE(storedText().contains(u"\"docs\""_s)) << qPrintable(storedText());
    EXPECT_TRUE(storedText().contains(u"{\"openURL\":{\"url\":\"https://se.se\"}}"_s));

    keys({"END", "DELE"});
    ASSERT_TRUE(waitForButtons(2));
    EXPECT_FALSE(storedText().contains(u"docs"_s));
    chord({"LCTL"}, "AB01"); // Z
    ASSERT_TRUE(waitForButtons(3));
    chord({"LCTL", "LFSH"}, "AB01");
    ASSERT_TRUE(waitForButtons(2));
    // A closed window forgets nothing.
    chord({"LCTL"}, "AD02"); // W
    ASSERT_TRUE(waitFor([&] { return inputFocus(session_.client()) != settings; }));
    openSettings();
    chord({"LCTL"}, "AB01");
    ASSERT_TRUE(waitForButtons(3));

    session_.program().kill();
    ASSERT_TRUE(waitFor([&] { return !session_.bar(); }));
    session_.launch();
    ASSERT_TRUE(waitForButtons(3));
    EXPECT_TRUE(storedText().contains(u"docs"_s));
}

TEST_F(SettingsTest, ARecordedHotKeyCountsAtOnceAndIsNotTakenFromItsHolder) {
    Driver& driver = session_.driver();
    ASSERT_TRUE(waitForButtons(2));
    openSettings();
    keys({"TAB"}); // away from the list
    chord({"LCTL"}, "TAB");
    chord({"LCTL"}, "TAB");
    const auto record = [&](const QByteArray& modifier, const QByteArray& position) {
        key("SPCE");
        EXPECT_TRUE(waitForKeyboard(false));
        chord({modifier}, position);
        EXPECT_TRUE(waitForKeyboard(true));
    };
    record("LALT", "AB07"); // the present one: it toggles nothing meanwhile
    record("LWIN", "SPCE");
    EXPECT_TRUE(session_.isBarShown());
    Witness front(QRect(0, 700, 300, 200));
    ASSERT_TRUE(waitForFocus(front.window()));
    for (const QString& layout : {u"us"_s, u"fr"_s}) {
        setLayout(layout);
        for (const bool isShown : {false, true}) {
            driver.tapChord("LWIN", "SPCE");
            EXPECT_TRUE(waitFor([&] { return session_.isBarShown() == isShown; }));
        }
        front.clear();
        session_.pressHotKey();
        EXPECT_TRUE(waitFor([&] {
            return std::ranges::any_of(front.keys(), [&](const Witness::Event& event) {
                return event.type == XCB_KEY_PRESS && event.detail == driver.keycode("AB07");
            });
        })) << "the one before is free";
    }
    setLayout(u"us"_s);
    {
        const XClient other;
        xcb_grab_key(
            other, false, other.root(), XCB_MOD_MASK_CONTROL, driver.keycode("AC07"),
            XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        other.sync();
        session_.launchAnother()->waitForFinished();
        EXPECT_TRUE(session_.waitForSettings());
        record("LCTL", "AC07");
        driver.tapChord("LCTL", "AC07");
        EXPECT_TRUE(waitFor([&] {
            return Reply<xcb_generic_event_t>(xcb_poll_for_event(other)) != nullptr;
        })) << "it stays the other's";
        EXPECT_TRUE(session_.isBarShown());
    }
    EXPECT_TRUE(waitFor([&] {
        driver.tapChord("LCTL", "AC07");
        return waitFor([&] { return !session_.isBarShown(); }, 300);
    }));
}

TEST_F(SettingsTest, AHeldKeyActsOnceAndTheRecorderIsLeftByKeys) {
    const xcb_window_t settings = openSettings();
    key("HOME");
    session_.driver().pressKey("RTRN");
    waitForSheet(settings);
    // The recorder has the keyboard, and nobody else hears of the repeats: ten of them are time.
    EXPECT_TRUE(waitForKeyboard(false));
    waitFor([] { return false; }, 250);
    session_.driver().releaseKey("RTRN");
    keys({"TAB", "TAB"});
    EXPECT_TRUE(waitForKeyboard(true));
    hold("RTRN", settings);
    EXPECT_TRUE(storedText().contains(u"{\"modifiers\":[\"Command\"],\"key\":\"L\"}"_s))
        << qPrintable(storedText());

    keys({"DOWN", "RTRN"});
    const xcb_window_t editor = waitForSheet(settings);
    keys({"AC01", "TAB", "TAB"}); // an "a" before the title, and on to the symbol's chooser
    for (const char* const closing : {"ESC", "RTRN"}) {
        key("SPCE");
        waitForSheet(editor);
        hold(closing, editor);
    }
    key("TAB"); // to a control that leaves Return to Save
    key("RTRN");
    waitForSheet(editor); // the question about the command
    hold("ESC", editor);
    EXPECT_FALSE(storedText().contains(u"ashell"_s));
    key("RTRN");
    waitForSheet(editor);
    key("TAB");
    hold("RTRN", settings);
    EXPECT_TRUE(waitForStored(u"\"ashell\""_s)) << qPrintable(storedText());
}

TEST_F(SettingsTest, TheEditorKeepsTheKeyboardWhenTheWindowBehindIsClicked) {
    const xcb_window_t settings = openSettings();
    XClient& client = session_.client();
    const Reply<xcb_translate_coordinates_reply_t> place(xcb_translate_coordinates_reply(
        client, xcb_translate_coordinates(client, settings, client.root(), 20, 450), nullptr));
    ASSERT_TRUE(place);
    keys({"TAB", "SPCE"});
    const xcb_window_t editor = waitForSheet(settings);
    // Another program is in front, so that the click is seen to have had its effect.
    const Witness other(QRect(0, 700, 300, 200));
    ASSERT_TRUE(waitForFocus(other.window()));
    session_.driver().move(place->dst_x, place->dst_y);
    session_.driver().click();
    // For good: at first the two windows may take turns.
    for (int i = 0; i < 20; ++i) {
        ASSERT_TRUE(waitForFocus(editor));
        key("AC03");
    }
    keys({"ESC"});
    EXPECT_TRUE(session_.waitForSettings());
}

} // namespace

// The hot key and bound mouse buttons, pressed while another application is in front.

#include "model/MouseButtonBinding.h"
#include "model/StoredForm.h"
#include "session/Session.h"

#include <QSettings>
#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

constexpr uint8_t shiftLock = XCB_MOD_MASK_LOCK;
constexpr uint8_t numLock = XCB_MOD_MASK_2;

/// Holds the hot key, as hands do, until the bar is hidden or shown; then lets go.
testing::AssertionResult toggles(Session& session) {
    const bool before = session.isBarShown();
    session.driver().pressKey("LALT");
    session.driver().pressKey("AB07");
    const bool changed = waitFor([&] { return session.isBarShown() != before; });
    session.driver().releaseKey("AB07");
    session.driver().releaseKey("LALT");
    if (changed)
        return testing::AssertionSuccess();
    return testing::AssertionFailure()
           << (before ? "still shown" : "still hidden") << (session.menu() ? ", menu open" : "")
           << (isKeyboardFree(session.client()) ? "" : ", keyboard taken") << '\n'
           << session.log().join(u'\n').toStdString();
}

TEST(HotKey, TogglesOnEveryLayoutAndTheApplicationInFrontKeepsTheFocus) {
    Session session;
    session.launch();
    EXPECT_TRUE(waitFor([&] { return session.isBarShown(); }));
    Witness witness;
    const xcb_window_t focus = inputFocus(session.client());
    for (const QString& layout : {u"us"_s, u"fr"_s, u"jp"_s, u"ru"_s, u"us(dvorak)"_s}) {
        for (const bool locked : {false, true}) {
            SCOPED_TRACE(layout.toStdString() + (locked ? " with locks" : ""));
            setLayout(layout);
            lockModifiers(session.client(), shiftLock | numLock, locked);
            EXPECT_TRUE(toggles(session));
            EXPECT_TRUE(toggles(session));
            EXPECT_EQ(inputFocus(session.client()), focus);
            EXPECT_EQ(activeWindow(session.client()), witness.window());
            lockModifiers(session.client(), shiftLock | numLock, false);
        }
    }
    setLayout(u"us"_s);
    EXPECT_FALSE(isAnythingDown(session.client()));
}

TEST(HotKey, WorksWhileTheBarsMenuIsOpen) {
    Session session;
    session.launch();
    EXPECT_TRUE(waitFor([&] { return session.isBarShown(); }));
    const auto menus = [&] {
        return std::ranges::count_if(topWindows(session.client()), [](const TopWindow& window) {
            return window.overrideRedirect && window.processId != 0;
        });
    };
    const auto before = menus();
    session.driver().move(24, 18); // the menu comes up here, below where the bar is looked at
    session.driver().click();
    EXPECT_TRUE(waitFor([&] { return session.menu().has_value(); }));
    EXPECT_TRUE(toggles(session));
    EXPECT_TRUE(toggles(session));
    session.driver().tapKey("ESC");
    EXPECT_TRUE(waitFor([&] { return isKeyboardFree(session.client()); }));
    EXPECT_LE(menus(), before + 1);
}

TEST(HotKey, PressedDuringStartsNeverFreezesTheKeyboard) {
    for (int start = 0; start < 8; ++start) {
        Session session;
        Witness witness;
        session.launch(Session::Launch::WithoutWaiting);
        while (!session.bar())
            session.pressHotKey();
        // Whatever came of those presses, the key works now, and others reach the front.
        EXPECT_TRUE(waitFor([&] { return isKeyboardFree(session.client()); }));
        witness.clear();
        session.driver().tapKey("AC01");
        EXPECT_TRUE(witness.waitForInput(2));
        EXPECT_TRUE(waitFor([&] {
            session.pressHotKey();
            const bool before = session.isBarShown();
            session.pressHotKey();
            return waitFor([&] { return session.isBarShown() != before; }, 300);
        }));
        EXPECT_FALSE(isAnythingDown(session.client()));
    }
}

TEST(MouseButtons, OnlyBoundOnesAct) {
    Session session;
    {
        const QList<MouseButtonBinding> bindings{
            {3, ExecuteShellCommand{u"echo three"_s}}, // the X server's button 8
            {4, ExecuteShellCommand{u"echo four"_s}},  // and 9
        };
        QSettings settings(session.settingsFile(), QSettings::IniFormat);
        settings.setValue(u"SavedMouseBindings"_s, encodedList(bindings));
    }
    session.launch();
    Witness witness;
    session.driver().move(300, 350);
    session.driver().click(10);
    EXPECT_TRUE(witness.waitForInput(2));
    session.driver().click(8);
    EXPECT_TRUE(session.waitForLog(u"📝 Command output: three"_s));
    session.driver().click(9);
    EXPECT_TRUE(session.waitForLog(u"📝 Command output: four"_s));
    EXPECT_EQ(session.log().filter(u"🚀"_s).size(), 2);
}

} // namespace

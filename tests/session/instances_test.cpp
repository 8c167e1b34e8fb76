// Several launches of the program in one session: one of them stays.

#include "model/StoredForm.h"
#include "session/Session.h"

#include <QSettings>
#include <csignal>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

size_t bars(Session& session) {
    size_t count = 0;
    for (const TopWindow& window : topWindows(session.client()))
        count += window.overrideRedirect && window.mapped && window.processId != 0 &&
                 window.geometry.width() == session.client().screen().width_in_pixels;
    return count;
}

/// Waits until a launch has ended by itself, and looks at its end.
void expectToYield(Program& launch) {
    EXPECT_TRUE(launch.waitForFinished(10000));
    launch.end();
}

/// The process that shows the one bar.
std::optional<qint64> barOf(Session& session) {
    const auto bar = session.bar();
    return bar && bars(session) == 1 ? std::optional(bar->processId) : std::nullopt;
}

TEST(Instances, BeforeAgreementASecondLaunchBringsTheTermsForward) {
    Session session({.agreed = false});
    session.launch();
    const auto active = [&] { return activeWindow(session.client()); };
    ASSERT_TRUE(waitFor([&] { return active() != 0; }));
    const xcb_window_t terms = active();
    // Not now and then: the launch ends right after it has asked.
    for (int round = 0; round < 10; ++round) {
        // Once more if the terms were still on their own way to the front.
        std::optional<Witness> witness;
        ASSERT_TRUE(waitFor([&] {
            witness.emplace();
            return waitFor([&] { return inputFocus(session.client()) == witness->window(); }, 1000);
        }));
        expectToYield(*session.launchAnother());
        EXPECT_TRUE(waitFor([&] { return active() == terms; })) << round;
    }
}

TEST(Instances, ALaunchTakesOverFromOneThatEnds) {
    Session session;
    auto current = session.launchAnother();
    for (int round = 0; round < 10; ++round) {
        ASSERT_TRUE(waitFor([&] { return barOf(session) == current->processId(); })) << round;
        auto next = session.launchAnother();
        current.reset(); // asked to end while the next one starts
        current = std::move(next);
    }
    EXPECT_TRUE(waitFor([&] { return barOf(session) == current->processId(); }));
}

/// The process of the window with the keyboard focus, 0 for none.
qint64 focusedProcess(const XClient& client) {
    const xcb_window_t window = inputFocus(client);
    const auto process =
        window > 1 ? client.property(window, "_NET_WM_PID") : std::vector<uint32_t>{};
    return process.empty() ? 0 : process.front();
}

TEST(Instances, OneFollowsTheOtherWhenRestartedWithTheHotKeyGoingOn) {
    constexpr int rounds = 10;
    QList<ShortcutButton> shortcuts;
    for (int number = 0; number < rounds + 2; ++number)
        shortcuts.append(
            ShortcutButton(QString::number(number), {}, OpenUrl{u"u"_s}, ButtonAlignment::left));
    Session session({.shortcuts = shortcuts});
    session.launch();
    auto before = barOf(session);
    ASSERT_TRUE(before);
    std::vector<qint64> successors;
    const auto waitPressing = [&](const auto& condition) {
        return waitFor([&] {
            session.pressHotKey();
            return condition();
        });
    };
    for (int round = 0; round < rounds; ++round) {
        SCOPED_TRACE(round);
        // A second launch opens the settings. There the last button goes, and with no other chosen
        // it is two steps from the list to the restart button.
        const auto second = session.launchAnother();
        ASSERT_TRUE(waitPressing(
            [&] { return !second->isRunning() && focusedProcess(session.client()) == *before; }));
        for (const char* const key : {"END", "DELE", "TAB", "TAB", "SPCE"})
            session.driver().tapKey(key);
        ASSERT_TRUE(waitPressing([&] { return barOf(session).value_or(*before) != *before; }));
        before = barOf(session);
        ASSERT_TRUE(before);
        successors.push_back(*before);
    }
    EXPECT_EQ(bars(session), 1U);
    // The key works, sooner or later: the last start may not be over.
    EXPECT_TRUE(waitFor([&] {
        const bool wasShown = session.isBarShown();
        session.pressHotKey();
        return waitFor([&] { return session.isBarShown() != wasShown; }, 300);
    }));
    EXPECT_FALSE(isAnythingDown(session.client()));
    const QSettings stored(session.settingsFile(), QSettings::IniFormat);
    EXPECT_EQ(stored.value(u"SavedShortcuts"_s).toByteArray(), encodedList(shortcuts.first(2)));
    ::kill(static_cast<pid_t>(*before), SIGTERM);
    for (const qint64 successor : successors)
        Session::expectEndOfSuccessor(successor);
    EXPECT_EQ(bars(session), 0U);
}

TEST(Instances, CommandsReachTheOneThatRuns) {
    Session session;
    const auto run = [&](const QStringList& arguments, int status = 0) {
        const auto launch = session.launchAnother(arguments);
        launch->expectStatus(status);
        EXPECT_TRUE(launch->waitForFinished(10000));
    };
    run({u"--quit"_s}); // nobody is there
    for (const QStringList& senseless : QList<QStringList>{
             {u"--togle"_s}, {u"foo"_s}, {u"--hide"_s, u"--show"_s}, {u"--version"_s, u"--quit"_s}})
        run(senseless, 2);
    session.launch();
    for (const auto& [argument, isShown] :
         {std::pair(u"--show"_s, true),
          {u"--toggle"_s, false},
          {u"--hide"_s, false},
          {u"--toggle"_s, true},
          {u"--hide"_s, false},
          {u"--show"_s, true}}) {
        run({argument});
        EXPECT_TRUE(waitFor([&] { return session.isBarShown() == isShown; }))
            << qPrintable(argument);
    }
    run({u"--quit"_s});
    EXPECT_TRUE(session.program().waitForFinished(10000));
}

// From one that runs to one that does not, and to one that runs, each with a home of its own.
TEST(Instances, WhatOneExportsAnotherImports) {
    const auto stored = [](const Session& session) {
        return QSettings(session.settingsFile(), QSettings::IniFormat)
            .value(u"SavedShortcuts"_s)
            .toByteArray();
    };
    const auto run = [](Session& session, const QStringList& arguments, int status = 0) {
        const auto launch = session.launchAnother(arguments);
        launch->expectStatus(status);
        EXPECT_TRUE(launch->waitForFinished(10000));
    };
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"a\nname with ü"_s);
    QByteArray exported;
    {
        Session from(
            {.shortcuts = QList<ShortcutButton>{
                 {u"ü"_s, u"star"_s, LaunchApp{u"Safari"_s, u"com.apple.Safari"_s}},
                 {u"keys"_s, u"lock"_s, PressKeyCombo{{u"Command"_s}, u"L"_s}}}});
        from.launch();
        run(from, {u"--export"_s, file});
        exported = stored(from);
    }
    Session to;
    run(to, {u"--import"_s, file});
    EXPECT_EQ(stored(to), exported);
    to.launch();
    EXPECT_TRUE(waitFor([&] { return to.buttons().size() == 2; }));
    const QByteArray text = Session::readFile(file);
    const QString wrong = to.writeFile(u"wrong"_s, QByteArray(text).replace("pressKeyCombo", "x"));
    run(to, {u"--import"_s, wrong}, 1);
    EXPECT_EQ(stored(to), exported);
    const QByteArray rest = "\n],\"mouseBindings\":[],\"preferences\":{}}";
    const QString fewer = to.writeFile(u"fewer"_s, text.left(text.lastIndexOf(",\n{")) + rest);
    run(to, {u"--import"_s, fewer});
    EXPECT_TRUE(waitFor([&] { return to.buttons().size() == 1; }));
    run(to, {u"--import"_s}, 2);
}

TEST(Instances, ASecondLaunchBringsTheSettingsBeforeAnotherApplication) {
    for (const QString& windowManager : {u"openbox"_s, u"xfwm4"_s}) {
        SCOPED_TRACE(windowManager.toStdString());
        Session session({.windowManager = windowManager});
        session.launch();
        session.expectSettingsInFront([&] { expectToYield(*session.launchAnother()); });
    }
}

} // namespace

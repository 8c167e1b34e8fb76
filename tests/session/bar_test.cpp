// The bar on the screen: where it is, what happens when the session is not as it should be.

#include "session/Session.h"

#include <QFile>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

TEST(Bar, LiesOverTheMenuBarStripToThePixel) {
    const struct {
        QSize screen;
        int topInset;
        QString environment, dpi;
        int height;
    } cases[] = {
        {{1512, 982}, 0, u"QT_SCALE_FACTOR"_s, {}, 24},
        {{3024, 1964}, 64, u"QT_SCALE_FACTOR=2"_s, {}, 64},
        {{1920, 1080}, 0, u"QT_SCALE_FACTOR"_s, u"100"_s, 25},
        {{1366, 768}, 47, u"QT_SCALE_FACTOR=1.5"_s, {}, 47},
    };
    for (const auto& given : cases) {
        SCOPED_TRACE(given.height);
        Session session(
            {.screen = given.screen,
             .topInset = given.topInset,
             .environment = {given.environment}});
        if (!given.dpi.isEmpty())
            session.display().run(
                u"xprop"_s, {u"-root"_s, u"-f"_s, u"RESOURCE_MANAGER"_s, u"8s"_s, u"-set"_s,
                             u"RESOURCE_MANAGER"_s, u"Xft.dpi:\t%1\n"_s.arg(given.dpi)});
        session.launch();
        EXPECT_EQ(session.bar()->geometry, QRect(0, 0, given.screen.width(), given.height));
        EXPECT_TRUE(waitFor([&] { return session.buttons().size() == 4; }));
    }
}

TEST(Bar, ComesUpOverXWhateverQtIsToldAndPassesThatOn) {
    Session session(
        {.shortcuts = {{ShortcutButton(
             u"Environment"_s, {}, ExecuteShellCommand{u"echo $QT_QPA_PLATFORM $WAYLAND_DISPLAY"_s},
             ButtonAlignment::left)}},
         .arguments = {u"-platform"_s, u"minimal"_s},
         .environment = {
             u"QT_QPA_PLATFORM=offscreen"_s, u"WAYLAND_DISPLAY=none"_s,
             u"XDG_SESSION_TYPE=x11"_s}});
    session.launch();
    ASSERT_TRUE(waitFor([&] { return session.buttons().size() == 1; }));
    session.driver().move(session.buttons()[0].center().x(), 12);
    session.driver().click();
    EXPECT_TRUE(session.waitForLog(u"📝 Command output: offscreen none"_s));
}

TEST(Bar, EndsWithALineWhereItCannotStart) {
    const std::pair<QString, QString> cases[] = {
        {u"unset DISPLAY"_s, u"Velmora ends: it needs an X11 display"_s},
        {u"ulimit -n 9"_s, u"Velmora ends: too few files"_s},
        {u"ulimit -n 14"_s, u"Velmora ends: too few files"_s},
    };
    for (const auto& [before, line] : cases) {
        SCOPED_TRACE(before.toStdString());
        const QString command = before + u"; exec "_s + Session::buildTreeProgram();
        Session session({.program = u"/bin/sh"_s, .arguments = {u"-c"_s, command}});
        session.launch(Session::Launch::WithoutWaiting);
        session.program().expectStatus(EXIT_FAILURE);
        EXPECT_TRUE(waitFor([&] { return !session.program().isRunning(); }));
        EXPECT_EQ(session.log().filter(line).size(), 1) << session.log().join(u'\n').toStdString();
    }
}

TEST(Bar, EndsQuietlyWithTheServer) {
    Session session;
    session.launch();
    // Start-up is over once the hot key, which comes up last, has hidden the bar.
    EXPECT_TRUE(waitFor([&] { return session.buttons().size() == 4; }));
    EXPECT_TRUE(waitFor([&] {
        session.pressHotKey();
        return waitFor([&] { return session.buttons().empty(); }, 500);
    }));
    // Killed, not asked: what a crash of the server looks like.
    session.program().expectStatus(EXIT_FAILURE);
    session.display().kill();
    EXPECT_TRUE(waitFor([&] { return !session.program().isRunning(); }));
    EXPECT_EQ(session.log().size(), 1) << session.log().join(u'\n').toStdString();
}

TEST(Bar, SaysOnceThatAWaylandSessionKeepsTheKeys) {
    Session session({.environment = {u"XDG_SESSION_TYPE=wayland"_s}});
    const auto notices = [&] {
        const XClient& client = session.client();
        // The bar keeps its room by a window that the manager manages, too.
        return std::ranges::count_if(
            client.property(client.root(), "_NET_CLIENT_LIST"),
            [&](xcb_window_t window) { return client.property(window, "_NET_WM_STRUT").empty(); });
    };
    const auto launch = [&] {
        session.launch();
        EXPECT_TRUE(waitFor([&] { return session.buttons().size() == 4; }));
        EXPECT_TRUE(waitFor([&] { return notices() == 1; }));
        EXPECT_TRUE(waitFor([&] { return inputFocus(session.client()) > 1; }));
    };
    launch();
    session.driver().tapChord("LCTL", "AD01"); // Ctrl+Q
    EXPECT_TRUE(waitFor([&] { return !session.program().isRunning(); }));
    EXPECT_TRUE(waitFor([&] { return notices() == 0; }));

    launch();
    session.driver().tapKey("RTRN");
    EXPECT_TRUE(waitFor([&] { return notices() == 0; }));
    // The bar's buttons work all the same.
    session.driver().move(session.buttons()[2].center().x(), 12);
    session.driver().click();
    EXPECT_TRUE(session.waitForLog(u"🚀 Executing action: Open https://www.google.com/"_s));
}

TEST(Bar, ComesUpWithoutHomeOrBusAndStartsNoBus) {
    for (const QString& bus :
         {u"DBUS_SESSION_BUS_ADDRESS"_s, u"DBUS_SESSION_BUS_ADDRESS=unix:path=/nowhere"_s}) {
        SCOPED_TRACE(bus.toStdString());
        const QTemporaryDir folder;
        const QString asked = folder.filePath(u"asked"_s);
        // What the bus's library runs to start one, at the front of the search path.
        QFile launcher(folder.filePath(u"dbus-launch"_s));
        ASSERT_TRUE(launcher.open(QIODevice::WriteOnly));
        launcher.write("#!/bin/sh\ntouch " + asked.toUtf8() + "\nexit 1\n");
        launcher.close();
        launcher.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        Session session(
            {.environment = {
                 u"HOME"_s, bus,
                 u"PATH="_s + folder.path() + u':' + qEnvironmentVariable("PATH")}});
        session.display().start(u"trayer"_s, {u"--edge"_s, u"bottom"_s});
        session.launch();
        EXPECT_TRUE(waitFor([&] {
            return session.display()
                       .run(u"xwininfo"_s, {u"-root"_s, u"-tree"_s})
                       .count("(\"velmora\" \"velmora\")") == 2;
        })) << "the bar and the tray's item";
        EXPECT_FALSE(QFile::exists(asked));
    }
}

} // namespace

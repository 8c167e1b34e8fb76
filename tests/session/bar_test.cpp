// The bar on the screen: where it is, what happens when the session is not as it should be.

#include "session/Session.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

TEST(Bar, LiesOverTheMenuBarStrip) {
    struct Case {
        int topInset;
        QStringList environment;
        QSize screen;
        QRect bar;
    };
    const Case cases[] = {
        {0, {}, {1512, 982}, {0, 0, 1512, 24}},
        {32, {}, {1512, 982}, {0, 0, 1512, 32}},
        {64, {u"QT_SCALE_FACTOR=2"_s}, {3024, 1964}, {0, 0, 3024, 64}},
        {48, {u"QT_SCALE_FACTOR=1.5"_s}, {2268, 1473}, {0, 0, 2268, 48}},
    };
    for (const Case& given : cases) {
        SCOPED_TRACE(given.bar.height());
        Session session(
            {.screen = given.screen, .topInset = given.topInset, .environment = given.environment});
        session.launch();
        ASSERT_TRUE(session.bar());
        EXPECT_EQ(session.bar()->geometry, given.bar);
        EXPECT_TRUE(waitFor([&] { return session.buttons().size() == 4; }));
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

TEST(Bar, SaysSoWithoutADisplay) {
    Session session({.agreed = false, .environment = {u"DISPLAY"_s}});
    session.launch();
    session.program().expectStatus(EXIT_FAILURE);
    EXPECT_TRUE(waitFor([&] { return !session.program().isRunning(); }));
    EXPECT_EQ(session.log().size(), 1);
}

TEST(Bar, SaysOnceThatAWaylandSessionKeepsTheKeys) {
    Session session({.environment = {u"XDG_SESSION_TYPE=wayland"_s}});
    const auto notices = [&] {
        return session.client().property(session.client().root(), "_NET_CLIENT_LIST").size();
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

TEST(Bar, ComesUpWithoutHomeOrBus) {
    Session session({.environment = {u"HOME"_s, u"DBUS_SESSION_BUS_ADDRESS=unix:path=/nowhere"_s}});
    session.launch();
    EXPECT_TRUE(waitFor([&] { return session.buttons().size() == 4; }));
}

} // namespace

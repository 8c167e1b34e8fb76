// The first run: nothing but the terms until the user agrees.

#include "session/Session.h"

#include <QFile>
#include <QSettings>
#include <algorithm>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace velmora::test;

namespace {

struct Terms : testing::Test {
    /// Starts the program and waits for the terms window, active: before agreement it is alone.
    void launch() {
        session.launch();
        ASSERT_TRUE(waitFor([this] { return activeWindow(session.client()) != 0; }));
        terms = activeWindow(session.client());
        EXPECT_FALSE(session.bar());
    }

    Session session{{.agreed = false}};
    xcb_window_t terms = 0;
};

TEST_F(Terms, StandOnTopAndOnlyTheTwoAnswersLeave) {
    launch();
    const auto state = session.client().property(terms, "_NET_WM_STATE");
    EXPECT_EQ(std::ranges::count(state, session.client().atom("_NET_WM_STATE_ABOVE")), 1);
    session.driver().tapKey("ESC");
    session.driver().tapChord("LALT", "FK04");
    // A later key is answered after the earlier ones: the window is still there to answer it.
    session.driver().tapChord("LCTL", "AD01"); // Ctrl+Q
    EXPECT_TRUE(waitFor([this] { return !session.program().isRunning(); }));
    EXPECT_FALSE(QFile::exists(session.settingsFile())) << "nothing is stored";
    EXPECT_FALSE(session.bar());
}

TEST_F(Terms, ReturnAgreesAndTheBarComesUpInTheSameProcess) {
    launch();
    session.driver().tapKey("RTRN");
    EXPECT_TRUE(waitFor([this] { return session.bar().has_value(); }));
    const QSettings stored(session.settingsFile(), QSettings::IniFormat);
    EXPECT_TRUE(stored.value(u"hasAgreedToToS_v1"_s).toBool());
    EXPECT_TRUE(session.program().isRunning());
    EXPECT_TRUE(waitFor([&] { return session.client().property(terms, "_NET_WM_STATE").empty(); }));
}

TEST_F(Terms, HoldForTheSessionWhereTheyCannotBeStored) {
    const QByteArray file = QFile::encodeName(session.settingsFile());
    ASSERT_EQ(::mkfifo(file.constData(), 0600), 0);
    launch();
    session.driver().tapKey("RTRN");
    EXPECT_TRUE(waitFor([this] { return session.bar().has_value(); }));
    EXPECT_EQ(
        session.log(), QStringList(u"⚠️ %1 cannot keep the settings: Not a regular file"_s.arg(
                           session.settingsFile())));
}

} // namespace

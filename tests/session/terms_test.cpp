// The first run: nothing but the terms until the user agrees.

#include "session/Session.h"

#include <QSettings>
#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora::test;

namespace {

class Terms : public testing::Test {
protected:
    Terms() : session({.agreed = false}) {
        session.launch();
        EXPECT_TRUE(waitFor([this] { return window() != 0; }));
    }

    /// The terms window, once it is there and active: before agreement there is no other.
    xcb_window_t window() { return activeWindow(session.client()); }

    bool agreed() {
        return QSettings(session.settingsFile(), QSettings::IniFormat)
            .value(u"hasAgreedToToS_v1"_s, false)
            .toBool();
    }

    Session session;
};

TEST_F(Terms, StandAloneOnTop) {
    EXPECT_FALSE(session.bar());
    const auto state = session.client().property(window(), "_NET_WM_STATE");
    EXPECT_EQ(std::ranges::count(state, session.client().atom("_NET_WM_STATE_ABOVE")), 1);
}

TEST_F(Terms, OnlyTheTwoAnswersLeave) {
    session.driver().tapKey("ESC");
    session.driver().tapChord("LALT", "FK04");
    // A later key is answered after the earlier ones: the window is still there to answer it.
    session.driver().tapChord("LCTL", "AD01"); // Ctrl+Q
    EXPECT_TRUE(waitFor([this] { return !session.program().isRunning(); }));
    EXPECT_FALSE(agreed());
    EXPECT_FALSE(session.bar());
}

TEST_F(Terms, ReturnAgreesAndTheBarComesUpInTheSameProcess) {
    const xcb_window_t terms = window();
    session.driver().tapKey("RTRN");
    EXPECT_TRUE(waitFor([this] { return session.bar().has_value(); }));
    EXPECT_TRUE(agreed());
    EXPECT_TRUE(session.program().isRunning());
    EXPECT_TRUE(waitFor([&] { return session.client().property(terms, "_NET_WM_STATE").empty(); }));
}

} // namespace

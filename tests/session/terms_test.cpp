// The first run: nothing but the terms until the user agrees.

#include "session/Session.h"

#include <QSettings>
#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace velmora::test;

namespace {

class Terms : public testing::Test {
protected:
    Terms() : session({.agreed = false}) {
        session.launch();
        EXPECT_TRUE(waitFor([this] { return window().has_value(); }));
    }

    /// The terms window's frame on the screen, once it is there and active.
    std::optional<QRect> window() {
        const xcb_window_t active = activeWindow(session.client());
        if (!active)
            return std::nullopt;
        const QByteArray name = session.display().run(
            u"xprop"_s, {u"-id"_s, QString::number(active), u"_NET_WM_NAME"_s});
        if (!name.contains("Terms of Service"))
            return std::nullopt;
        const Reply<xcb_get_geometry_reply_t> geometry(xcb_get_geometry_reply(
            session.client(), xcb_get_geometry(session.client(), active), nullptr));
        const Reply<xcb_translate_coordinates_reply_t> origin(xcb_translate_coordinates_reply(
            session.client(),
            xcb_translate_coordinates(session.client(), active, session.client().root(), 0, 0),
            nullptr));
        if (!geometry || !origin)
            return std::nullopt;
        return QRect(origin->dst_x, origin->dst_y, geometry->width, geometry->height);
    }

    bool agreed() {
        return QSettings(session.settingsFile(), QSettings::IniFormat)
            .value(u"hasAgreedToToS_v1"_s, false)
            .toBool();
    }

    Session session;
};

TEST_F(Terms, StandAloneInTheMiddleAndOnTop) {
    const auto frame = window();
    ASSERT_TRUE(frame);
    EXPECT_EQ(frame->size(), QSize(500, 400));
    EXPECT_NEAR(frame->center().x(), 1512 / 2, 2);
    EXPECT_NEAR(frame->center().y(), 982 / 2, 20); // the title bar is the window manager's
    EXPECT_FALSE(session.bar());
    const QByteArray state = session.display().run(
        u"xprop"_s,
        {u"-id"_s, QString::number(activeWindow(session.client())), u"_NET_WM_STATE"_s});
    EXPECT_THAT(state.toStdString(), testing::HasSubstr("_NET_WM_STATE_ABOVE"));
}

TEST_F(Terms, OnlyTheTwoAnswersLeave) {
    session.driver().tapKey("ESC");
    session.driver().tapChord("LALT", "FK04");
    // A later key is answered after the earlier ones: the window is still there to answer it.
    session.driver().tapChord("LCTL", "AD01"); // Ctrl+Q
    EXPECT_TRUE(waitFor([this] { return session.program().state() == QProcess::NotRunning; }));
    EXPECT_EQ(session.program().exitCode(), 0);
    EXPECT_FALSE(agreed());
    EXPECT_FALSE(session.bar());
}

TEST_F(Terms, ReturnAgreesAndTheBarComesUpInTheSameProcess) {
    session.driver().tapKey("RTRN");
    EXPECT_TRUE(waitFor([this] { return session.bar().has_value(); }));
    EXPECT_TRUE(agreed());
    EXPECT_EQ(session.program().state(), QProcess::Running);
    EXPECT_TRUE(waitFor([this] { return !window(); }));
}

} // namespace

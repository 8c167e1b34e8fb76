// Clicks on the bar's buttons: what each kind of action does.

#include "session/Session.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

ShortcutButton button(const QString& title, const ShortcutAction& action) {
    return {title, u"star"_s, action, ButtonAlignment::left};
}

/// A session whose bar has these buttons.
Session::Options withButtons(const QList<ShortcutButton>& buttons) {
    return {.topInset = 32, .shortcuts = buttons};
}

void click(Session& session, const QRect& place) {
    session.driver().move(place.center().x(), place.center().y());
    session.driver().click();
}

TEST(Actions, FourKindsRunByClickAndNeverTakeTheFocus) {
    Session session(withButtons({
        button(u"Launch"_s, LaunchApp{u"Marker"_s, u"velmora-marker"_s}),
        button(u"Web"_s, OpenUrl{u"https://velmora.invalid/page?a=b"_s}),
        button(u"Shell"_s, ExecuteShellCommand{u"print -u2 err; print out; exit 3"_s}),
        button(u"Keys"_s, PressKeyCombo{{u"Command"_s, u"Shift"_s}, u"n"_s}),
    }));
    const QString launched = session.home() + u"/launched"_s;
    const QString opened = session.home() + u"/opened"_s;
    const auto entry = [](const QString& name, const QString& command, const QString& more) {
        return u"[Desktop Entry]\nType=Application\nName=%1\nExec=%2\n%3\n"_s
            .arg(name, command, more)
            .toUtf8();
    };
    session.writeFile(
        u".local/share/applications/velmora-marker.desktop"_s,
        entry(u"Marker"_s, u"sh -c \"echo yes > '%1'\""_s.arg(launched), {}));
    session.writeFile(
        u".local/share/applications/velmora-browser.desktop"_s,
        entry(
            u"Browser"_s, u"sh -c \"echo \\\\\"\\\\$1\\\\\" > '%1'\" sh %u"_s.arg(opened),
            u"MimeType=x-scheme-handler/https;"_s));
    session.writeFile(
        u".config/mimeapps.list"_s,
        "[Default Applications]\nx-scheme-handler/https=velmora-browser.desktop\n");

    Witness witness;
    session.launch();
    EXPECT_TRUE(waitFor([&] { return session.buttons().size() == 4; }));
    const auto places = session.buttons();
    ASSERT_EQ(places.size(), 4u);
    const xcb_window_t active = activeWindow(session.client());
    const xcb_window_t focus = inputFocus(session.client());
    witness.clear();

    click(session, places[0]);
    EXPECT_TRUE(session.waitForLog(u"✅ Launched Marker via bundle ID"_s));
    EXPECT_TRUE(waitFor([&] { return Session::readFile(launched) == "yes\n"; }));

    click(session, places[1]);
    EXPECT_TRUE(session.waitForLog(u"✅ Opened URL: https://velmora.invalid/page?a=b"_s));
    EXPECT_TRUE(waitFor([&] {
        return Session::readFile(opened) == "https://velmora.invalid/page?a=b\n";
    })) << Session::readFile(opened).constData();

    click(session, places[2]);
    EXPECT_TRUE(session.waitForLog(u"✅ Executed shell command"_s));

    EXPECT_TRUE(witness.keys().empty());
    click(session, places[3]);
    EXPECT_TRUE(session.waitForLog(u"✅ Key combo sent successfully"_s));
    EXPECT_TRUE(waitFor([&] { return witness.keys().size() >= 2; }));
    const auto keys = witness.keys();
    ASSERT_EQ(keys.size(), 2u);
    const uint8_t keyN = session.driver().keycode("AB06");
    constexpr uint16_t exactly = XCB_MOD_MASK_4 | XCB_MOD_MASK_SHIFT;
    EXPECT_EQ(keys[0].type, XCB_KEY_PRESS);
    EXPECT_EQ(keys[0].detail, keyN);
    EXPECT_EQ(keys[0].state, exactly);
    EXPECT_EQ(keys[1].type, XCB_KEY_RELEASE);
    EXPECT_EQ(keys[1].detail, keyN);
    EXPECT_EQ(keys[1].state, exactly);

    EXPECT_EQ(activeWindow(session.client()), active);
    EXPECT_EQ(inputFocus(session.client()), focus);
}

TEST(Actions, KeysThatAKilledVelmoraLeftDownAreLetGoAtStart) {
    Session session;
    session.driver().pressKey("AB03");
    const uint8_t left = session.driver().keycode("AB03");
    XClient& client = session.client();
    xcb_change_property(
        client, XCB_PROP_MODE_REPLACE, client.root(), client.atom("_VELMORA_PRESSED_KEYS"),
        XCB_ATOM_CARDINAL, 8, 1, &left);
    client.sync();
    session.launch();
    EXPECT_TRUE(waitFor([&] { return !isAnythingDown(client); }));
}

} // namespace

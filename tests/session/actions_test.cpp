// Clicks on the bar's buttons: what each kind of action does.

#include "session/Session.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

ShortcutButton button(const ShortcutAction& action) {
    return {u"Button"_s, u"star"_s, action, ButtonAlignment::left};
}

TEST(Actions, FourKindsRunByClickAndNeverTakeTheFocus) {
    Session session({
        .topInset = 32,
        .shortcuts =
            QList{
                button(LaunchApp{u"Marker"_s, u"velmora-marker"_s}),
                button(OpenUrl{u"https://velmora.invalid/page?a=b"_s}),
                button(ExecuteShellCommand{
                    u"print -u2 -n err; print -n out:$DESKTOP_STARTUP_ID:$XDG_ACTIVATION_TOKEN; exit 3"_s}),
                button(PressKeyCombo{{u"Command"_s, u"Shift"_s}, u"n"_s})},
        .environment = {u"DESKTOP_STARTUP_ID=used"_s, u"XDG_ACTIVATION_TOKEN=used"_s},
    });
    const QString launched = session.home() + u"/launched"_s;
    const QString opened = session.home() + u"/opened"_s;
    const auto entry = [&](const QByteArray& id, const QString& command) {
        session.writeFile(
            u".local/share/applications/%1.desktop"_s.arg(QString::fromLatin1(id)),
            "[Desktop Entry]\nType=Application\nName=A\nMimeType=x-scheme-handler/https;\nExec=" +
                command.toUtf8());
    };
    entry(
        "velmora-marker",
        u"sh -c \"echo \\\\$DESKTOP_STARTUP_ID:\\\\$XDG_ACTIVATION_TOKEN > '%1'\""_s.arg(launched));
    entry("velmora-browser", u"sh -c \"echo \\\\$1 > '%1'\" sh %u"_s.arg(opened));
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
    const auto click = [&](const QRect& place) {
        session.driver().move(place.center().x(), place.center().y());
        session.driver().click();
    };

    click(places[0]);
    EXPECT_TRUE(session.waitForLog(u"✅ Launched Marker via bundle ID"_s));
    EXPECT_TRUE(waitFor([&] { return Session::readFile(launched) == ":\n"; }));

    click(places[1]);
    EXPECT_TRUE(session.waitForLog(u"✅ Opened URL: https://velmora.invalid/page?a=b"_s));
    EXPECT_TRUE(
        waitFor([&] { return Session::readFile(opened) == "https://velmora.invalid/page?a=b\n"; }));

    click(places[2]);
    EXPECT_TRUE(session.waitForLog(u"📝 Command output: errout::"_s));
    EXPECT_TRUE(session.waitForLog(u"✅ Executed shell command"_s));

    EXPECT_TRUE(witness.keys().empty());
    click(places[3]);
    EXPECT_TRUE(session.waitForLog(u"✅ Key combo sent successfully"_s));
    EXPECT_TRUE(waitFor([&] { return witness.keys().size() >= 2; }));
    const auto keys = witness.keys();
    ASSERT_EQ(keys.size(), 2u);
    constexpr uint16_t exactly = XCB_MOD_MASK_4 | XCB_MOD_MASK_SHIFT;
    for (const auto& key : keys) {
        EXPECT_EQ(key.type, &key == keys.data() ? XCB_KEY_PRESS : XCB_KEY_RELEASE);
        EXPECT_EQ(key.detail, session.driver().keycode("AB06"));
        EXPECT_EQ(key.state, exactly);
    }
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

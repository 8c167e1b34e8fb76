// The settings window of the real program: opened from the bar's menu, used by pointer and
// keyboard.

#include "session/Session.h"

#include <QSettings>
#include <csignal>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

class SettingsTest : public testing::Test {
protected:
    SettingsTest() { session_.launch(); }

    void key(const QByteArray& position) { session_.driver().tapKey(position); }
    void keys(std::initializer_list<QByteArray> positions) {
        for (const QByteArray& position : positions)
            key(position);
    }

    /// Where the window's own content begins on the screen.
    QPoint origin(xcb_window_t window) {
        XClient& client = session_.client();
        const auto cookie = xcb_translate_coordinates(client, window, client.root(), 0, 0);
        const Reply<xcb_translate_coordinates_reply_t> reply(
            xcb_translate_coordinates_reply(client, cookie, nullptr));
        return reply ? QPoint(reply->dst_x, reply->dst_y) : QPoint();
    }

    /// Opens the window by the third item of the bar's menu, and gives it when it has the focus.
    xcb_window_t openSettings() {
        Driver& driver = session_.driver();
        driver.move(26, 12);
        driver.click();
        EXPECT_TRUE(waitForMenu(true));
        keys({"DOWN", "DOWN", "RTRN"});
        EXPECT_TRUE(session_.waitForSettings());
        return activeWindow(session_.client());
    }

    bool waitForMenu(bool isOpen) {
        return waitFor([&] { return session_.menu().has_value() == isOpen; });
    }

    /// Waits for a sheet over the settings window.
    bool waitForSheet(xcb_window_t settings) {
        return waitFor([&] {
            const xcb_window_t active = activeWindow(session_.client());
            return active && active != settings && inputFocus(session_.client()) == active;
        });
    }

    QString storedText() {
        const QSettings settings(session_.settingsFile(), QSettings::IniFormat);
        return QString::fromUtf8(settings.value(u"SavedShortcuts"_s).toByteArray());
    }
    bool waitForButtons(size_t count) {
        return waitFor([&] { return session_.buttons().size() == count; });
    }

    Session session_;
};

TEST_F(SettingsTest, AnAddedButtonIsOnTheBarAtOnceAndOutlivesACrash) {
    ASSERT_TRUE(waitForButtons(4));
    const xcb_window_t settings = openSettings();
    keys({"TAB", "SPCE"}); // from the list to Add
    ASSERT_TRUE(waitForSheet(settings));
    keys({"AC03", "AD09", "AB03", "AC02"});     // "docs"
    keys({"TAB", "TAB", "TAB", "TAB", "DOWN"}); // to the action's type, and open its menu
    ASSERT_TRUE(waitForMenu(true));
    keys({"DOWN", "RTRN"}); // open an address
    ASSERT_TRUE(waitForMenu(false));
    keys({"TAB", "AB02", "AB02", "RTRN"}); // "xx", and save
    ASSERT_TRUE(session_.waitForSettings());
    ASSERT_TRUE(waitForButtons(5));
    EXPECT_TRUE(storedText().contains(u"\"docs\""_s)) << qPrintable(storedText());
    EXPECT_TRUE(storedText().contains(u"{\"openURL\":{\"url\":\"xx\"}}"_s));

    session_.program().kill();
    ASSERT_TRUE(waitFor([&] { return !session_.bar(); }));
    session_.launch();
    ASSERT_TRUE(waitForButtons(5));

    openSettings();
    keys({"END", "DELE"});
    ASSERT_TRUE(waitForButtons(4));
    EXPECT_FALSE(storedText().contains(u"docs"_s));
}

TEST_F(SettingsTest, TheEditorKeepsTheKeyboardWhenTheWindowBehindIsClicked) {
    const xcb_window_t settings = openSettings();
    const QPoint behind = origin(settings) + QPoint(20, 450);
    keys({"TAB", "SPCE"});
    ASSERT_TRUE(waitForSheet(settings));
    const xcb_window_t editor = activeWindow(session_.client());
    // Another program is in front, so that the click is seen to have had its effect.
    const Witness other(QRect(0, 700, 300, 200));
    ASSERT_TRUE(waitFor([&] { return inputFocus(session_.client()) == other.window(); }));
    session_.driver().move(behind.x(), behind.y());
    session_.driver().click();
    // For good: at first the two windows may take turns.
    for (int i = 0; i < 20; ++i) {
        ASSERT_TRUE(waitFor([&] { return inputFocus(session_.client()) == editor; }));
        key("AC03");
    }
    keys({"ESC"});
    EXPECT_TRUE(session_.waitForSettings());
}

} // namespace

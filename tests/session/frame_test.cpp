// Where the settings window opens: whole in what the bar and the desktop's panels leave.

#include "session/Session.h"

#include <QSettings>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

const QString frameKey = u"NSWindow Frame SettingsWindow"_s;

/// The settings window, which is active, with its title bar and borders.
QRect settingsFrame(Session& session) {
    xcb_window_t window = activeWindow(session.client());
    // The window manager's own around it is a child of the root.
    while (true) {
        const Reply<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(
            session.client(), xcb_query_tree(session.client(), window), nullptr));
        if (!tree || tree->parent == tree->root)
            break;
        window = tree->parent;
    }
    for (const TopWindow& each : topWindows(session.client())) {
        if (each.id == window)
            return each.geometry;
    }
    return {};
}

/// Starts the program again, which shows the settings.
QRect openSettings(Session& session) {
    QProcess again;
    again.setProcessEnvironment(session.environment());
    again.start(Session::programFile(), QStringList{});
    again.waitForFinished();
    EXPECT_TRUE(session.waitForSettings());
    return settingsFrame(session);
}

/// A desktop's panel along the screen's lower edge.
void addPanel(XClient& client, int height) {
    const auto window = xcb_generate_id(client);
    const auto set = [&](const QByteArray& name, xcb_atom_t type, std::vector<uint32_t> values) {
        xcb_change_property(
            client, XCB_PROP_MODE_REPLACE, window, client.atom(name), type, 32,
            static_cast<uint32_t>(values.size()), values.data());
    };
    const auto [width, bottom] =
        std::pair(client.screen().width_in_pixels, client.screen().height_in_pixels);
    xcb_create_window(
        client, XCB_COPY_FROM_PARENT, window, client.root(), 0,
        static_cast<int16_t>(bottom - height), width, static_cast<uint16_t>(height), 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    set("_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM, {client.atom("_NET_WM_WINDOW_TYPE_DOCK")});
    set("_NET_WM_STRUT", XCB_ATOM_CARDINAL, {0, 0, 0, static_cast<uint32_t>(height)});
    xcb_map_window(client, window);
    const auto left = static_cast<uint32_t>(bottom - height);
    EXPECT_TRUE(waitFor([&] {
        const auto area = client.property(client.root(), "_NET_WORKAREA");
        return area.size() > 3 && area[3] == left;
    }));
}

TEST(SettingsFrame, LiesWholeBelowTheBarAndBesideThePanels) {
    const struct {
        QSize screen;
        int scale;
        int panel; // its height
        const char* saved;
    } cases[] = {
        {{1280, 800}, 1, 0, "1200 900 640 560"},
        {{1280, 800}, 1, 60, "300 400 640 560"},
        {{1280, 800}, 1, 0, "100 0 640 560 2 25"},
        {{800, 600}, 1, 0, "725 525 640 560 2 25"},
        {{1920, 1080}, 2, 0, nullptr},
    };
    for (const auto& [screen, scale, panel, saved] : cases) {
        SCOPED_TRACE(testing::Message() << screen.width() << " panel " << panel);
        Session session({.screen = screen, .environment = {u"QT_SCALE_FACTOR=%1"_s.arg(scale)}});
        if (saved)
            QSettings(session.settingsFile(), QSettings::IniFormat)
                .setValue(frameKey, QByteArray(saved));
        if (panel > 0)
            addPanel(session.client(), panel);
        session.launch();
        const int bar = session.bar()->geometry.height();
        const QRect window = openSettings(session);
        const QRect area = QRect(QPoint(), screen).adjusted(0, bar, 0, -panel);
        EXPECT_TRUE(area.contains(window))
            << window.x() << ' ' << window.y() << ' ' << window.right() << ' ' << window.bottom();
    }
}

TEST(SettingsFrame, AMoveJustBeforeTheEndIsKept) {
    Session session;
    session.launch();
    const QRect first = openSettings(session);
    const uint32_t frame[] = {311, 207, 650, 570};
    xcb_configure_window(
        session.client(), activeWindow(session.client()),
        XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
            XCB_CONFIG_WINDOW_HEIGHT,
        frame);
    EXPECT_TRUE(waitFor([&] { return settingsFrame(session).size() != first.size(); }));
    // A button that lights up under the pointer: the program has seen what was before.
    const QPoint button = session.buttons()[0].topLeft();
    const QRgb unlit = pixel(session.client(), button);
    session.driver().move(button.x(), button.y());
    EXPECT_TRUE(waitFor([&] { return pixel(session.client(), button) != unlit; }));
    const QRect moved = settingsFrame(session);
    EXPECT_EQ(moved.topLeft(), QPoint(311, 207));
    session.program().terminate();
    EXPECT_TRUE(session.program().waitForFinished());
    session.launch();
    EXPECT_EQ(openSettings(session), moved);
}

} // namespace

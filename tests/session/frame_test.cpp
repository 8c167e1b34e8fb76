// Where the settings window opens: whole in what the bar and the desktop's panels leave.

#include "session/Session.h"

#include <QSettings>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

/// The settings window, which is active, with its title bar and borders.
QRect settingsFrame(Session& session) {
    const XClient& client = session.client();
    // What the window manager puts around it is a child of the root.
    for (xcb_window_t window = activeWindow(client);;) {
        const Reply<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(client, xcb_query_tree(client, window), nullptr));
        const Reply<xcb_get_geometry_reply_t> place(
            xcb_get_geometry_reply(client, xcb_get_geometry(client, window), nullptr));
        if (!tree || !place)
            return {};
        if (tree->parent == tree->root)
            return {place->x, place->y, place->width, place->height};
        window = tree->parent;
    }
}

QRect openSettings(Session& session) {
    const auto again = session.launchAnother();
    EXPECT_TRUE(waitFor([&] { return !again->isRunning(); }));
    EXPECT_TRUE(session.waitForSettings());
    return settingsFrame(session);
}

/// A desktop's panel along the screen's lower edge.
void addPanel(XClient& client, uint16_t height) {
    const auto window = xcb_generate_id(client);
    const uint16_t top = client.screen().height_in_pixels - height;
    xcb_create_window(
        client, XCB_COPY_FROM_PARENT, window, client.root(), 0, int16_t(top),
        client.screen().width_in_pixels, height, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
        XCB_COPY_FROM_PARENT, 0, nullptr);
    const uint32_t type = client.atom("_NET_WM_WINDOW_TYPE_DOCK");
    xcb_change_property(
        client, XCB_PROP_MODE_REPLACE, window, client.atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM,
        32, 1, &type);
    const uint32_t strut[] = {0, 0, 0, height};
    xcb_change_property(
        client, XCB_PROP_MODE_REPLACE, window, client.atom("_NET_WM_STRUT"), XCB_ATOM_CARDINAL, 32,
        4, strut);
    const auto makesRoom = [&] {
        const auto area = client.property(client.root(), "_NET_WORKAREA");
        return area.size() > 3 && area[3] == top;
    };
    // A window manager that is still starting may overlook the window.
    EXPECT_TRUE(waitFor([&] {
        xcb_unmap_window(client, window);
        xcb_map_window(client, window);
        return waitFor(makesRoom, 500);
    }));
}

TEST(SettingsFrame, LiesWholeBelowTheBarAndBesideThePanels) {
    const struct {
        QSize screen;
        int scale;
        uint16_t panel; // its height
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
                .setValue(u"NSWindow Frame SettingsWindow"_s, QByteArray(saved));
        if (panel > 0)
            addPanel(session.client(), panel);
        session.launch();
        const QRect area =
            QRect(QPoint(), screen).adjusted(0, session.bar()->geometry.height(), 0, -panel);
        const QRect window = openSettings(session);
        EXPECT_EQ(window, window & area);
        EXPECT_GT(window.height(), 400);
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
    session.program().end();
    session.launch();
    EXPECT_EQ(openSettings(session), moved);
}

} // namespace

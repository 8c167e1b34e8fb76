#include "contract/panel/PanelProbe.h"
#include "contract/panel/SessionTest.h"
#include "platform/x11/panel/X11Panel.h"
#include "platform/x11/panel/X11StackKeeper.h"
#include "platform/x11/screens/X11Screens.h"

#include <QElapsedTimer>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace velmora::test {
namespace {

constexpr int kHeight = 24;
const QPoint kOnPanel(700, 12);

class PanelWindowContract : public SessionTest {
protected:
    PanelWindowContract() {
        setPresented(true);
        EXPECT_TRUE(waitFor([this] { return panelShows(); }));
    }

    bool panelShows() const { return isGradient(pixel(client, kOnPanel)); }
    xcb_window_t panelId() const { return static_cast<xcb_window_t>(view->window()->winId()); }

    void clickOnPanel() {
        driver.move(kOnPanel.x(), kOnPanel.y());
        driver.click();
    }

    int position(xcb_window_t window) const { return stackPosition(client, window); }

    /// The child of the root that `window` is in.
    xcb_window_t topOf(const Witness& window) const {
        xcb_window_t top = window.window();
        for (;;) {
            const Reply<xcb_query_tree_reply_t> tree(
                xcb_query_tree_reply(client, xcb_query_tree(client, top), nullptr));
            if (!tree || tree->parent == client.root())
                return top;
            top = tree->parent;
        }
    }

    void makeFullScreen(const Witness& window) {
        if (hasManager()) {
            xcb_client_message_event_t message{};
            message.response_type = XCB_CLIENT_MESSAGE;
            message.format = 32;
            message.window = window.window();
            message.type = client.atom("_NET_WM_STATE");
            message.data.data32[0] = 1;
            message.data.data32[1] = client.atom("_NET_WM_STATE_FULLSCREEN");
            xcb_send_event(
                client, false, client.root(),
                XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                reinterpret_cast<const char*>(&message));
        } else {
            const uint32_t values[] = {
                0, 0, uint32_t(displaySize.width()), uint32_t(displaySize.height()),
                XCB_STACK_MODE_ABOVE};
            xcb_configure_window(
                client, window.window(),
                XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                    XCB_CONFIG_WINDOW_HEIGHT | XCB_CONFIG_WINDOW_STACK_MODE,
                values);
        }
        // Asked first: a compositor may draw later what is in place.
        ASSERT_TRUE(waitFor([&] { return position(panelId()) > position(topOf(window)); }));
        // White where the full-screen window shows, just below the panel.
        ASSERT_TRUE(waitFor([this] {
            return pixel(client, {3, kHeight + 1}) == 0xffffffff &&
                   pixel(client, {displaySize.width() - 3, displaySize.height() - 3}) == 0xffffffff;
        }));
    }

    void setPresented(bool presented) const {
        panel->request({.height = kHeight, .presented = presented});
    }

    Driver driver;
    X11Screens screens{*connection};
    X11Panels panels{*connection, screens};
    GradientView* const view = new GradientView;
    const std::unique_ptr<Panel> panel = panels.create(std::unique_ptr<QWidget>(view));
};

TEST_P(PanelWindowContract, ShowsAndTakesClicksAboveAFullScreenWindowAsItIsSetAndNeverTheFocus) {
    Witness front;
    makeFullScreen(front);
    const xcb_window_t id = panelId();
    const auto listed = client.property(client.root(), "_NET_CLIENT_LIST");
    EXPECT_EQ(std::count(listed.begin(), listed.end(), id), 0);
    for (int round = 0; round < 2; ++round) {
        EXPECT_TRUE(waitFor([this] { return panelShows(); }));
        front.clear();
        clickOnPanel();
        EXPECT_TRUE(waitFor([&] { return view->presses == round + 1; }));
        EXPECT_TRUE(front.events().empty());
        EXPECT_EQ(inputFocus(client), front.window());
        if (hasManager()) {
            EXPECT_EQ(activeWindow(client), front.window());
        }
        EXPECT_FALSE(view->isActiveWindow());

        // Hidden it lets the clicks through, and is still mapped.
        setPresented(false);
        EXPECT_TRUE(waitFor([this] { return pixel(client, kOnPanel) == 0xffffffff; }));
        EXPECT_GE(position(id), 0);
        clickOnPanel();
        EXPECT_TRUE(front.waitForInput(2));
        setPresented(true);
        EXPECT_EQ(panelId(), id);
    }
}

TEST_P(PanelWindowContract, StaysBelowMenusAndTooltips) {
    Popup tooltip;
    tooltip.setType("TOOLTIP");
    tooltip.map();
    QMenu menu;
    menu.addAction(u"Hide"_s);
    menu.popup({300, 5});
    const auto menuId = static_cast<xcb_window_t>(menu.winId());
    EXPECT_TRUE(waitFor([&] { return position(menuId) >= 0; }));
    // Something to be raised over, so that the menus must be kept above in turn.
    Popup popup;
    popup.map();
    EXPECT_TRUE(waitFor([&] { return position(panelId()) > position(popup.id); }));
    EXPECT_TRUE(waitFor([&] { return position(menuId) > position(panelId()); }));
    EXPECT_TRUE(waitFor([&] { return position(tooltip.id) > position(panelId()); }));
    EXPECT_TRUE(waitFor([&] { return pixel(client, kOnPanel) == 0xff00ff00; }));
}

TEST_P(PanelWindowContract, AsksNothingAboutAWindowThatMovesAboveIt) {
    Popup tooltip;
    tooltip.setType("TOOLTIP");
    tooltip.map();
    Popup beside({600, 40, 200, 100});
    beside.map();
    Popup popup;
    const auto arrived = [&] {
        // Above what is above: a panel that comes to lie over it has seen all before.
        popup.raise();
        popup.map();
        return waitFor([&] { return position(panelId()) > position(popup.id); });
    };
    ASSERT_TRUE(arrived());
    const auto requests = [this] { return xcb_no_operation(*connection).sequence; };
    const auto before = requests();
    for (int step = 0; step < 1000; ++step) {
        tooltip.moveTo({step, 3});
        beside.moveTo({step, 40 + step % 3});
        if (step % 10 == 0)
            QCoreApplication::processEvents();
    }
    xcb_unmap_window(popup.client, popup.id);
    ASSERT_TRUE(arrived());
    EXPECT_LT(requests() - before, 150U);
}

TEST_P(PanelWindowContract, LeavesAWarOverTheTop) {
    Popup rival;
    rival.map();
    xcb_connection_t* const watch = rival.client;
    const uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(watch, client.root(), XCB_CW_EVENT_MASK, &mask);
    rival.raise();

    // The rival answers each raise with its own, at once. The war must cool down by itself.
    int raises = 0;
    QElapsedTimer sinceLastRaise;
    sinceLastRaise.start();
    EXPECT_TRUE(waitFor([&] {
        while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(watch)}) {
            const auto& configured = reinterpret_cast<const xcb_configure_notify_event_t&>(*event);
            if ((event->response_type & 0x7f) != XCB_CONFIGURE_NOTIFY ||
                configured.window != panelId())
                continue;
            ++raises;
            sinceLastRaise.restart();
            rival.raise();
        }
        return raises > 0 && sinceLastRaise.elapsed() > 600;
    }));
    EXPECT_LE(raises, 10);
    // Shown again by the user it comes to the top at once all the same.
    setPresented(false);
    setPresented(true);
    client.sync();
    EXPECT_GT(position(panelId()), position(rival.id));
}

const auto sessionName = [](const auto& session) {
    return QByteArray(session.param).replace('+', '_').toStdString();
};

INSTANTIATE_TEST_SUITE_P(Sessions, PanelWindowContract, testing::ValuesIn(sessions()), sessionName);
INSTANTIATE_TEST_SUITE_P(Tiling, PanelWindowContract, testing::Values("i3"), sessionName);

class TiledPanel : public PanelWindowContract {};

TEST_P(TiledPanel, IsAboveAFullScreenWindowWhenTheManagerHasRestarted) {
    Witness front;
    makeFullScreen(front);
    const xcb_window_t frame = topOf(front);
    display->run(u"i3-msg"_s, {u"restart"_s});
    EXPECT_TRUE(waitFor([&] {
        const xcb_window_t now = topOf(front);
        return now != frame && now != front.window() && position(panelId()) > position(now);
    }));
    EXPECT_TRUE(waitFor([this] { return panelShows(); }));
}

INSTANTIATE_TEST_SUITE_P(Tiling, TiledPanel, testing::Values("i3"), sessionName);

TEST_F(DisplayTest, TheKeeperSeesWhatWasAboveBeforeItCame) {
    Popup kept;
    kept.map();
    Popup above;
    above.map();
    const X11StackKeeper keeper(*connection, kept.id);
    EXPECT_TRUE(
        waitFor([&] { return stackPosition(client, kept.id) > stackPosition(client, above.id); }));
}

} // namespace
} // namespace velmora::test

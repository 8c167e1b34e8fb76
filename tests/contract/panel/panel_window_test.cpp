#include "contract/panel/PanelProbe.h"
#include "contract/panel/SessionTest.h"
#include "platform/x11/X11PanelWindows.h"

#include <QElapsedTimer>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace velmora::test {
namespace {

constexpr int kHeight = 24;
const QPoint kOnPanel(700, 12);

/// An override-redirect window of another program over part of the panel, green.
class Popup {
public:
    explicit Popup(const QByteArray& type = {}) : id(xcb_generate_id(client)) {
        const uint32_t values[] = {0x00ff00, 1};
        xcb_create_window(
            client, XCB_COPY_FROM_PARENT, id, client.root(), 600, 0, 200, 100, 0,
            XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
            XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT, values);
        if (!type.isEmpty()) {
            const xcb_atom_t atom = client.atom("_NET_WM_WINDOW_TYPE_" + type);
            xcb_change_property(
                client, XCB_PROP_MODE_REPLACE, id, client.atom("_NET_WM_WINDOW_TYPE"),
                XCB_ATOM_ATOM, 32, 1, &atom);
        }
        xcb_map_window(client, id);
        client.sync();
    }

    void raise() {
        const uint32_t mode = XCB_STACK_MODE_ABOVE;
        xcb_configure_window(client, id, XCB_CONFIG_WINDOW_STACK_MODE, &mode);
        client.sync();
    }

    XClient client;
    const xcb_window_t id;
};

class PanelWindowContract : public SessionTest {
protected:
    PanelWindowContract() {
        panel->setLevel(25);
        panel->setCollectionBehavior(0x101);
        panel->setBackgroundColor(Qt::transparent);
        panel->setHasShadow(false);
        panel->setOpaque(false);
        panel->setIgnoresMouseEvents(false);
        panel->orderFrontRegardless();
        panel->setContentView(view);
        EXPECT_TRUE(waitFor([this] { return panelShows(); }));
    }

    bool panelShows() const { return isGradient(pixel(client, kOnPanel)); }
    xcb_window_t panelId() const { return static_cast<xcb_window_t>(view->window()->winId()); }

    void clickOnPanel() {
        driver.move(kOnPanel.x(), kOnPanel.y());
        driver.click();
    }

    /// The place of `window`, or of the frame that it is in, among the root's children from the
    /// lowest; -1 when it is not mapped.
    int stackPosition(xcb_window_t window) const {
        const auto all = topWindows(client);
        const auto found =
            std::find_if(all.begin(), all.end(), [&](const auto& top) { return top.id == window; });
        return found != all.end() && found->mapped ? static_cast<int>(found - all.begin()) : -1;
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
        // White where the full-screen window shows, just below the panel.
        ASSERT_TRUE(waitFor([this] {
            return pixel(client, {3, kHeight + 1}) == 0xffffffff &&
                   pixel(client, {displaySize.width() - 3, displaySize.height() - 3}) == 0xffffffff;
        }));
    }

    Driver driver;
    X11PanelWindows windows{*connection};
    GradientView* const view = new GradientView;
    std::unique_ptr<PanelWindow> panel = windows.create(
        {0, double(displaySize.height() - kHeight), double(displaySize.width()), kHeight}, 0x8080);
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

        // Each setting by itself, and both.
        panel->setIgnoresMouseEvents(true);
        clickOnPanel();
        EXPECT_TRUE(front.waitForInput(2));
        EXPECT_TRUE(waitFor([this] { return panelShows(); }));
        panel->setAlphaValue(0.0);
        EXPECT_TRUE(waitFor([this] { return pixel(client, kOnPanel) == 0xffffffff; }));
        EXPECT_GE(stackPosition(id), 0) << "still mapped";
        front.clear();
        clickOnPanel();
        EXPECT_TRUE(front.waitForInput(2));
        panel->setIgnoresMouseEvents(false);
        EXPECT_EQ(view->presses, round + 1);
        EXPECT_EQ(pixel(client, kOnPanel), 0xffffffff);
        panel->setAlphaValue(1.0);
        EXPECT_EQ(panelId(), id);
    }
}

TEST_P(PanelWindowContract, StaysBelowMenusAndTooltips) {
    const Popup tooltip("TOOLTIP");
    EXPECT_TRUE(waitFor([&] { return pixel(client, kOnPanel) == 0xff00ff00; }));
    QMenu menu;
    menu.addAction(u"Hide"_s);
    menu.popup({300, 5});
    const auto menuId = static_cast<xcb_window_t>(menu.winId());
    EXPECT_TRUE(waitFor([&] { return stackPosition(menuId) >= 0; }));
    // Something to be raised over, so that the menus must be kept above in turn.
    const Popup popup;
    EXPECT_TRUE(waitFor([&] { return stackPosition(panelId()) > stackPosition(popup.id); }));
    EXPECT_TRUE(waitFor([&] { return stackPosition(menuId) > stackPosition(panelId()); }));
    EXPECT_TRUE(waitFor([&] { return stackPosition(tooltip.id) > stackPosition(panelId()); }));
}

TEST_P(PanelWindowContract, LeavesAWarOverTheTop) {
    Popup rival;
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
    panel->setAlphaValue(0.0);
    panel->setAlphaValue(1.0);
    client.sync();
    EXPECT_GT(stackPosition(panelId()), stackPosition(rival.id));
}

INSTANTIATE_TEST_SUITE_P(
    Sessions, PanelWindowContract, testing::ValuesIn(sessions()),
    [](const auto& session) { return QByteArray(session.param).replace('+', '_').toStdString(); });

} // namespace
} // namespace velmora::test

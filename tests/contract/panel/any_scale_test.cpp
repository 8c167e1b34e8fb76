// Runs at several scales: the panel covers the strip to the pixel, and insets turn into points.

#include "contract/panel/PanelProbe.h"
#include "contract/panel/SessionTest.h"
#include "platform/x11/panel/X11Panel.h"
#include "platform/x11/screens/X11Screens.h"

#include <QGuiApplication>
#include <xcb/randr.h>

namespace velmora::test {
namespace {

class AnyScale : public DisplayTest {
protected:
    ~AnyScale() override {
        xcb_delete_property(client, client.root(), client.atom("_SAFE_AREA_INSETS"));
        client.sync();
    }

    double top() const { return screens.mainScreen()->safeAreaInsets.top() * ratio; }

    void setRootInsets(const std::vector<uint32_t>& values) {
        xcb_change_property(
            client, XCB_PROP_MODE_REPLACE, client.root(), client.atom("_SAFE_AREA_INSETS"),
            XCB_ATOM_CARDINAL, 32, static_cast<uint32_t>(values.size()), values.data());
        client.sync();
    }

    const double ratio = qGuiApp->devicePixelRatio();
    QByteArray machine;
    X11Screens screens{*connection, [this] { return machine; }};
};

TEST_F(AnyScale, OutputPropertyComesBeforeTheRootWindows) {
    setRootInsets({32, 0, 0, 0});
    EXPECT_DOUBLE_EQ(top(), 32);
    setRootInsets({32, 0, 0});
    EXPECT_EQ(top(), 0);
    setRootInsets({5000, 0, 0, 0});
    EXPECT_EQ(top(), 0);
    setRootInsets({32, 0, 0, 0});

    const Reply<xcb_randr_get_screen_resources_current_reply_t> resources(
        xcb_randr_get_screen_resources_current_reply(
            client, xcb_randr_get_screen_resources_current(client, client.root()), nullptr));
    ASSERT_GT(resources->num_outputs, 0);
    const xcb_randr_output_t output =
        xcb_randr_get_screen_resources_current_outputs(resources.get())[0];
    const xcb_atom_t property = client.atom("safe_area_insets");
    const uint32_t insets[] = {48, 0, 0, 0};
    xcb_randr_change_output_property(
        client, output, property, XCB_ATOM_CARDINAL, 32, XCB_PROP_MODE_REPLACE, 4, insets);
    client.sync();
    EXPECT_DOUBLE_EQ(top(), 48);
    xcb_randr_delete_output_property(client, output, property);
    client.sync();
    EXPECT_DOUBLE_EQ(top(), 32);
}

TEST_F(AnyScale, StripIsCoveredToThePixel) {
    X11Panels panels(*connection, screens);
    for (const int pixels : {36, 32}) {
        auto* const view = new GradientView;
        const auto panel = panels.create(std::unique_ptr<QWidget>(view));
        panel->request({.height = pixels / ratio});
        const auto id = static_cast<xcb_window_t>(view->window()->winId());
        const auto windows = topWindows(client);
        const auto own = std::ranges::find(windows, id, &TopWindow::id);
        ASSERT_NE(own, windows.end());
        EXPECT_EQ(own->geometry, QRect(0, 0, displaySize.width(), pixels));

        const auto uncovered = [&] {
            int count = 0;
            const QImage strip = screenshot(client, QRect(0, 0, displaySize.width(), pixels));
            for (int y = 0; y < strip.height(); ++y) {
                for (int x = 0; x < strip.width(); ++x)
                    count += !isGradient(strip.pixel(x, y));
            }
            return count;
        };
        EXPECT_TRUE(waitFor([&] { return uncovered() == 0; })) << uncovered();
        EXPECT_FALSE(isGradient(pixel(client, {displaySize.width() / 2, pixels})));
    }
}

TEST_F(AnyScale, ALockerStaysAboveAndAnApplicationAsHighAsTheScreenDoesNot) {
    X11Panels panels(*connection, screens);
    auto* const view = new GradientView;
    const auto panel = panels.create(std::unique_ptr<QWidget>(view));
    panel->request({.height = 24});
    const auto id = static_cast<xcb_window_t>(view->window()->winId());
    const auto isAbovePanel = [&](const Popup& popup) {
        return stackPosition(client, popup.id) > stackPosition(client, id);
    };
    Popup locker({{0, 0}, displaySize});
    locker.addDescendant(false);
    locker.map();
    const auto putBelowLocker = [&](const Popup& popup) {
        const uint32_t values[] = {locker.id, XCB_STACK_MODE_BELOW};
        xcb_configure_window(
            popup.client, popup.id, XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE,
            values);
    };
    Popup frame({{0, 0}, displaySize});
    frame.addDescendant(true);
    putBelowLocker(frame);
    frame.map();
    EXPECT_TRUE(waitFor([&] { return !isAbovePanel(frame); }));
    EXPECT_TRUE(isAbovePanel(locker));
    // The dialogue of a locker lies above it.
    Popup dialogue;
    dialogue.map();
    frame.raise();
    Popup last;
    putBelowLocker(last);
    last.map();
    EXPECT_TRUE(waitFor([&] { return !isAbovePanel(last); })) << "it has looked";
    EXPECT_TRUE(isAbovePanel(frame) && isAbovePanel(dialogue) && isAbovePanel(locker));
    xcb_unmap_window(locker.client, locker.id);
    locker.client.sync();
    EXPECT_TRUE(waitFor([&] { return !isAbovePanel(frame) && !isAbovePanel(dialogue); }));
}

} // namespace
} // namespace velmora::test

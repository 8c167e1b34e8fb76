#include "overlay/OverlayController.h"
#include "overlay/ScreenManager.h"
#include "support/FakePanelWindows.h"
#include "support/FakeScreens.h"

#include <QPointer>
#include <QWidget>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

class OverlayControllerTest : public testing::Test {
protected:
    const test::PanelWindowRecord& window() const { return *windows.windows.back(); }

    test::FakeScreens screens;
    ScreenManager manager{screens};
    test::FakePanelWindows windows;
    OverlayController controller{manager, windows};
};

TEST_F(OverlayControllerTest, SetupCoversTheStripWithAPanelThatIsOnScreenAtOnce) {
    const struct {
        std::optional<Screen> screen;
        QRectF strip;
    } cases[] = {
        {test::screenOf(1512, 982, 32), {0, 950, 1512, 32}},
        {test::screenOf(1920, 1080), {0, 1056, 1920, 24}},
        {Screen{{300, 200, 1920, 1080}, {}}, {0, 1056, 1920, 24}},
        {std::nullopt, {0, -24, 0, 24}},
    };
    for (const auto& [screen, strip] : cases) {
        screens.screen = screen;
        const QPointer<QWidget> view = new QWidget;
        controller.setup(std::unique_ptr<QWidget>(view));
        EXPECT_EQ(window().contentRect, strip);
        EXPECT_EQ(window().contentView, view);
        EXPECT_EQ(view->geometry(), QRectF({0, 0}, strip.size()).toRect());
        // Shown last: a native window adopts its properties when it is mapped.
        EXPECT_EQ(
            window().calls.join(u", "_s),
            u"setLevel 25, setCollectionBehavior 257, setBackgroundColor #00000000, setHasShadow "
            "false, setOpaque false, setIgnoresMouseEvents false, orderFrontRegardless true"_s);
        controller.setup(std::make_unique<QWidget>());
        EXPECT_FALSE(view) << "dies with its panel";
        EXPECT_TRUE(window().onScreen);
        windows.windows.pop_back();
        EXPECT_FALSE(window().onScreen);
    }
}

TEST_F(OverlayControllerTest, ToggleHidesAndShowsWithoutTouchingAnythingElse) {
    controller.toggleOverlay();
    EXPECT_TRUE(controller.isOverlayVisible) << "not before setup";
    EXPECT_TRUE(windows.windows.empty());

    controller.setup(std::make_unique<QWidget>());
    const qsizetype callsAtSetup = window().calls.size();
    for (const bool visible : {false, true}) {
        controller.toggleOverlay();
        EXPECT_EQ(controller.isOverlayVisible, visible);
    }
    controller.isOverlayVisible = false;
    controller.toggleOverlay();
    EXPECT_EQ(
        window().calls.sliced(callsAtSetup).join(u", "_s),
        u"setAlphaValue 0, setIgnoresMouseEvents true, setAlphaValue 1, setIgnoresMouseEvents "
        "false, setAlphaValue 1, setIgnoresMouseEvents false"_s);
    EXPECT_TRUE(window().onScreen);

    controller.panel.reset();
    controller.toggleOverlay();
    EXPECT_TRUE(controller.isOverlayVisible);
}

} // namespace
} // namespace velmora

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

TEST_F(OverlayControllerTest, PanelIsMadeAsAStatusWindowAndOnScreenAtOnce) {
    const OverlayPanel panel(windows, {0, 950, 1512, 32});
    EXPECT_EQ(window().contentRect, QRectF(0, 950, 1512, 32));
    EXPECT_EQ(window().styleMask, 0x8080U);
    EXPECT_EQ(window().level, 25);
    EXPECT_EQ(window().collectionBehavior, 0x101U);
    EXPECT_EQ(window().backgroundColor.alpha(), 0);
    EXPECT_FALSE(window().hasShadow);
    EXPECT_FALSE(window().opaque);
    EXPECT_FALSE(window().ignoresMouseEvents);
    EXPECT_EQ(window().alphaValue, 1.0);
    EXPECT_TRUE(window().onScreen);
    // Shown last: a native window adopts its properties when it is mapped.
    EXPECT_EQ(window().calls.last(), u"orderFrontRegardless"_s);
}

TEST_F(OverlayControllerTest, ToggleBeforeSetupDoesNothing) {
    controller.toggleOverlay();
    EXPECT_TRUE(controller.isOverlayVisible);
    EXPECT_FALSE(controller.panel);
    EXPECT_TRUE(windows.windows.empty());
}

TEST_F(OverlayControllerTest, SetupCoversTheStripOfTheScreen) {
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
        controller.setup(std::make_unique<QWidget>());
        EXPECT_EQ(window().contentRect, strip);
    }
}

TEST_F(OverlayControllerTest, ViewFillsThePanelAndDiesWithIt) {
    screens.screen = test::screenOf(1512, 982, 32);
    auto view = std::make_unique<QWidget>();
    const QPointer<QWidget> watched = view.get();
    controller.setup(std::move(view));
    EXPECT_EQ(window().contentView, watched);
    EXPECT_EQ(watched->geometry(), QRect(0, 0, 1512, 32));

    controller.setup(std::make_unique<QWidget>());
    EXPECT_FALSE(watched);
    EXPECT_FALSE(windows.windows.front()->onScreen);
    EXPECT_TRUE(window().onScreen);
}

TEST_F(OverlayControllerTest, ToggleHidesAndShowsWithoutTouchingAnythingElse) {
    screens.screen = test::screenOf(1512, 982, 32);
    controller.setup(std::make_unique<QWidget>());
    const qsizetype callsAtSetup = window().calls.size();

    for (const bool visible : {false, true, false}) {
        controller.toggleOverlay();
        EXPECT_EQ(controller.isOverlayVisible, visible);
        EXPECT_EQ(window().alphaValue, visible ? 1.0 : 0.0);
        EXPECT_EQ(window().ignoresMouseEvents, !visible);
        EXPECT_TRUE(window().onScreen);
    }
    EXPECT_EQ(
        window().calls.mid(callsAtSetup, 2),
        (QStringList{u"setAlphaValue"_s, u"setIgnoresMouseEvents"_s}));
    EXPECT_EQ(window().calls.size(), callsAtSetup + 6);
}

TEST_F(OverlayControllerTest, ToggleStartsFromTheWritableState) {
    screens.screen = test::screenOf(1512, 982);
    controller.setup(std::make_unique<QWidget>());
    controller.isOverlayVisible = false;
    controller.toggleOverlay();
    EXPECT_EQ(window().alphaValue, 1.0);
    controller.panel.reset();
    controller.toggleOverlay();
    EXPECT_TRUE(controller.isOverlayVisible);
}

} // namespace
} // namespace velmora

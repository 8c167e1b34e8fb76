#include "foundation/UserDefaults.h"
#include "model/Preferences.h"
#include "overlay/OverlayController.h"
#include "overlay/ScreenManager.h"
#include "support/FakePanels.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

TEST(OverlayPanelTest, AsksForWhatScreenUserAndToggleSay) {
    const QTemporaryDir folder;
    UserDefaults defaults(folder.filePath(u"defaults"_s));
    Preferences preferences(defaults);
    test::FakeScreens screens;
    const ScreenManager screenManager(screens);
    test::FakePanels panels(screens);
    OverlayController controller(screenManager, preferences, panels);
    controller.toggleOverlay();
    EXPECT_TRUE(controller.isOverlayVisible) << "nothing to toggle yet";
    controller.setup(std::make_unique<QWidget>());

    const auto asksFor = [&](const PanelRequest& request) {
        EXPECT_EQ(panels.lastRequest(), request);
    };
    asksFor({.height = 24, .reservesStrip = true});
    controller.toggleOverlay();
    asksFor({.height = 24, .presented = false, .reservesStrip = true});
    screens.change(test::screenOf(1512, 982, 32));
    asksFor({.height = 32, .presented = false, .belowDocks = false, .reservesStrip = true});
    controller.toggleOverlay();
    screens.change(test::screenOf(1280, 800));
    asksFor({.height = 24, .reservesStrip = true});
    preferences.setKeepsWindowsBelow(false);
    asksFor({.height = 24});
    preferences.setBarAtTopEdge(true);
    asksFor({.height = 24, .belowDocks = false});
}

} // namespace
} // namespace velmora

#include "overlay/ScreenManager.h"
#include "support/FakeScreens.h"

#include <array>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::screenOf;

// QRectF compares with a tolerance; the geometry is promised to the last bit.
std::array<double, 4> bits(const QRectF& rect) {
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

TEST(ScreenManagerTest, GeometryFollowsFromFrameAndTopInset) {
    const struct {
        std::optional<Screen> screen;
        double menuBarHeight;
        QRectF notch;
        NotchSafeZones zones;
    } cases[] = {
        {std::nullopt, 24, {0, 0, 0, 0}, {0, 0}},
        {screenOf(1920, 1080, -1), 24, {0, 0, 0, 0}, {1920, 0}},
        {screenOf(1512, 982, 32), 32, {529.2, 950, 453.59999999999997, 32}, {529.2, 529.2}},
        {screenOf(1000, 500, 1e-9), 1e-9, {350, 500 - 1e-9, 300, 1e-9}, {350, 350}},
        {Screen{{-1440, 300, 1440, 900}, {1, 32, 3, 4}}, 32, {504, 868, 432, 32}, {504, 504}},
        {std::nullopt, 24, {0, 0, 0, 0}, {0, 0}},
    };
    test::FakeScreens screens; // asked anew each time
    const ScreenManager manager(screens);
    for (const auto& [screen, menuBarHeight, notch, zones] : cases) {
        SCOPED_TRACE(menuBarHeight);
        screens.screen = screen;
        EXPECT_EQ(manager.getPrimaryScreen().has_value(), screen.has_value());
        EXPECT_EQ(manager.getSafeInsets(), screen ? screen->safeAreaInsets : QMarginsF());
        EXPECT_EQ(manager.getMenuBarHeight(), menuBarHeight);
        EXPECT_EQ(manager.hasNotch(), notch.height() > 0);
        EXPECT_EQ(bits(manager.getNotchBounds()), bits(notch));
        EXPECT_EQ(manager.getNotchSafeZones().left, zones.left);
        EXPECT_EQ(manager.getNotchSafeZones().right, zones.right);
        EXPECT_EQ(bits(manager.getScreenFrame()), bits(screen ? screen->frame : QRectF()));
    }
}

} // namespace
} // namespace velmora

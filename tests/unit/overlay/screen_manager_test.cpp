#include "overlay/ScreenManager.h"
#include "support/FakeScreens.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::FakeScreens;
using test::screenOf;

struct GeometryCase {
    const char* name;
    std::optional<Screen> screen;
    double menuBarHeight;
    bool hasNotch;
    QRectF notch;
    NotchSafeZones zones;
};

class Geometry : public testing::TestWithParam<GeometryCase> {};

// QRectF compares with a tolerance; the geometry is promised to the last bit.
void expectSameBits(const QRectF& actual, const QRectF& expected) {
    EXPECT_EQ(actual.x(), expected.x());
    EXPECT_EQ(actual.y(), expected.y());
    EXPECT_EQ(actual.width(), expected.width());
    EXPECT_EQ(actual.height(), expected.height());
}

TEST_P(Geometry, FollowsFromFrameAndTopInset) {
    const GeometryCase& expected = GetParam();
    FakeScreens screens;
    screens.screen = expected.screen;
    const ScreenManager manager(screens);
    EXPECT_EQ(manager.getMenuBarHeight(), expected.menuBarHeight);
    EXPECT_EQ(manager.hasNotch(), expected.hasNotch);
    expectSameBits(manager.getNotchBounds(), expected.notch);
    EXPECT_EQ(manager.getNotchSafeZones().left, expected.zones.left);
    EXPECT_EQ(manager.getNotchSafeZones().right, expected.zones.right);
    expectSameBits(
        manager.getScreenFrame(), expected.screen ? expected.screen->frame : QRectF(0, 0, 0, 0));
}

INSTANTIATE_TEST_SUITE_P(
    Screens, Geometry,
    testing::Values(
        GeometryCase{"None", std::nullopt, 24, false, {0, 0, 0, 0}, {0, 0}},
        GeometryCase{"WithoutNotch", screenOf(1920, 1080), 24, false, {0, 0, 0, 0}, {1920, 0}},
        GeometryCase{
            "Laptop14",
            screenOf(1512, 982, 32),
            32,
            true,
            {529.2, 950, 453.59999999999997, 32},
            {529.2, 529.2}},
        GeometryCase{
            "Width1440", screenOf(1440, 900, 32), 32, true, {504, 868, 432, 32}, {504, 504}},
        GeometryCase{
            "TinyInset",
            screenOf(1000, 500, 1e-9),
            1e-9,
            true,
            {350, 500 - 1e-9, 300, 1e-9},
            {350, 350}},
        GeometryCase{"NegativeInset", screenOf(1000, 500, -1), 24, false, {0, 0, 0, 0}, {1000, 0}},
        GeometryCase{
            "ElsewhereThanTheOrigin",
            Screen{{-1440, 300, 1440, 900}, {0, 32, 0, 0}},
            32,
            true,
            {504, 868, 432, 32},
            {504, 504}}),
    [](const auto& geometry) { return geometry.param.name; });

TEST(ScreenManagerTest, AsksForTheScreenEachTime) {
    FakeScreens screens;
    const ScreenManager manager(screens);
    EXPECT_FALSE(manager.getPrimaryScreen());
    screens.screen = Screen{{0, 0, 1512, 982}, {1, 32, 3, 4}};
    EXPECT_EQ(manager.getSafeInsets(), QMarginsF(1, 32, 3, 4));
    screens.screen.reset();
    EXPECT_EQ(manager.getSafeInsets(), QMarginsF());
}

/// Replaces what the composite queries are made of.
class SubstitutedManager : public ScreenManager {
public:
    using ScreenManager::ScreenManager;

    std::optional<Screen> getPrimaryScreen() const override { return screenOf(1000, 500, 10); }
    QMarginsF getSafeInsets() const override { return {0, insetTop, 0, 0}; }
    QRectF getNotchBounds() const override { return {100, 490, 200, 10}; }

    double insetTop = 0;
};

TEST(ScreenManagerTest, CompositeQueriesHonourSubstitutes) {
    const FakeScreens none;
    SubstitutedManager manager(none);
    EXPECT_EQ(manager.getScreenFrame(), QRectF(0, 0, 1000, 500));
    EXPECT_EQ(manager.getNotchSafeZones(), (NotchSafeZones{100, 700}));
    // The notch and its zones read the screen; height and presence read the insets.
    EXPECT_FALSE(manager.hasNotch());
    EXPECT_EQ(manager.getMenuBarHeight(), 24.0);
    EXPECT_EQ(manager.ScreenManager::getNotchBounds(), QRectF(350, 490, 300, 10));
    manager.insetTop = 40;
    EXPECT_TRUE(manager.hasNotch());
    EXPECT_EQ(manager.getMenuBarHeight(), 40.0);
}

} // namespace
} // namespace velmora

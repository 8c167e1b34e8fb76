#include "platform/x11/PanelStacking.h"
#include "platform/x11/RaiseLimiter.h"

#include <gmock/gmock.h>

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace std::chrono_literals;

class StackingTest : public testing::Test {
protected:
    std::vector<std::uint32_t> raises(const std::vector<WindowAbove>& above) const {
        return windowsToRaise(1, panel, screen.height(), above);
    }

    const QRect screen{0, 0, 1512, 982};
    const QRect panel{0, 0, 1512, 24};
    const QRect overlapping{100, 10, 50, 50};
    const WindowAbove managed{.id = 2, .frame = overlapping};
    const WindowAbove popup{.id = 3, .frame = overlapping, .overrideRedirect = true};
    const WindowAbove ourMenu{
        .id = 4, .frame = overlapping, .overrideRedirect = true, .ours = true};
    const WindowAbove foreignTooltip{
        .id = 5, .frame = overlapping, .overrideRedirect = true, .transient = true};
    const WindowAbove locker{.id = 6, .frame = screen, .overrideRedirect = true};
};

TEST_F(StackingTest, RaisesOverWhatCoversThePanel) {
    EXPECT_THAT(raises({managed}), ElementsAre(1));
    EXPECT_THAT(raises({popup}), ElementsAre(1));
    WindowAbove fullScreen = managed;
    fullScreen.frame = screen;
    EXPECT_THAT(raises({fullScreen}), ElementsAre(1));
    WindowAbove ourSettings = ourMenu;
    ourSettings.overrideRedirect = false;
    EXPECT_THAT(raises({ourSettings}), ElementsAre(1));
}

TEST_F(StackingTest, LeavesAloneWhatMayOrDoesNotCoverIt) {
    WindowAbove elsewhere = popup;
    elsewhere.frame = {100, 24, 50, 50};
    WindowAbove hidden = popup;
    hidden.viewable = false;
    EXPECT_THAT(raises({}), IsEmpty());
    EXPECT_THAT(raises({elsewhere, hidden, ourMenu, foreignTooltip, locker}), IsEmpty());
}

TEST_F(StackingTest, KeepsMenusAboveInTheirOrder) {
    EXPECT_THAT(raises({ourMenu, foreignTooltip, popup}), ElementsAre(1, 4, 5));
    EXPECT_THAT(raises({foreignTooltip, managed, ourMenu}), ElementsAre(1, 5, 4));
}

TEST(RaiseLimiterTest, AWarSlowsDownAndACalmIsForgiven) {
    RaiseLimiter limiter;
    RaiseLimiter::Time now = 100s;
    EXPECT_EQ(limiter.delay(now), 0ms);

    int raisesOfOneMinute = 0;
    while (now < 160s) {
        limiter.raised(now);
        ++raisesOfOneMinute;
        EXPECT_GT(limiter.delay(now), 0ms);
        now += limiter.delay(now);
    }
    EXPECT_LT(raisesOfOneMinute, 20);
    EXPECT_LE(limiter.delay(now), 10s);

    now += 30s;
    EXPECT_EQ(limiter.delay(now), 0ms);
    limiter.raised(now);
    EXPECT_LE(limiter.delay(now), 50ms);
}

} // namespace
} // namespace velmora

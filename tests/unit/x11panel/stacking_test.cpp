#include "platform/x11/PanelStacking.h"
#include "platform/x11/RaiseLimiter.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace std::chrono_literals;

TEST(StackingTest, RaisesThePanelOverWhatMayNotCoverItAndItsMenusInTheirOrder) {
    const QRect screen(0, 0, 1512, 982);
    const QRect panel(0, 0, 1512, 24);
    const QRect overlapping(100, 10, 50, 50);
    const WindowAbove managed{.id = 2, .frame = overlapping};
    const WindowAbove fullScreen{.id = 2, .frame = screen};
    const WindowAbove ourSettings{.id = 2, .frame = overlapping, .ours = true};
    const WindowAbove popup{.id = 3, .frame = overlapping, .overrideRedirect = true};
    WindowAbove hidden = popup;
    hidden.viewable = false;
    const WindowAbove elsewhere{.id = 3, .frame = {100, 24, 50, 50}, .overrideRedirect = true};
    const WindowAbove menu{.id = 4, .frame = overlapping, .overrideRedirect = true, .ours = true};
    const WindowAbove tooltip{
        .id = 5, .frame = overlapping, .overrideRedirect = true, .transient = true};
    const WindowAbove locker{.id = 6, .frame = screen, .overrideRedirect = true};
    const struct {
        std::vector<WindowAbove> above;
        std::vector<std::uint32_t> raised;
    } cases[] = {
        {{}, {}},
        {{managed}, {1}},
        {{fullScreen}, {1}},
        {{ourSettings}, {1}},
        {{popup}, {1}},
        {{elsewhere, hidden, menu, tooltip, locker}, {}},
        {{menu, tooltip, popup}, {1, 4, 5}},
        {{tooltip, managed, menu}, {1, 5, 4}},
    };
    for (const auto& [above, raised] : cases)
        EXPECT_EQ(windowsToRaise(1, panel, screen.height(), above), raised);
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

#include "platform/x11/PanelStacking.h"
#include "platform/x11/RaiseLimiter.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace std::chrono_literals;

TEST(StackingTest, PutsThePanelAboveIntrudersWithItsMenusInTheirOrderAndNeverAboveALocker) {
    constexpr auto intruder = Cover::intruder;
    constexpr auto menu = Cover::menu;
    constexpr auto locker = Cover::locker;
    const struct {
        std::vector<WindowAbove> above;
        std::vector<Restacking> steps;
    } cases[] = {
        {{}, {}},
        {{{2, intruder}}, {{1, 2}}},
        {{{2, intruder}, {3, intruder}}, {{1, 3}}},
        {{{2, menu}, {3, menu}}, {}},
        {{{2, menu}, {3, intruder}, {4, menu}}, {{1, 3}, {2, 1}}},
        {{{2, menu}, {3, menu}, {4, intruder}}, {{1, 4}, {2, 1}, {3, 2}}},
        {{{2, locker}}, {}},
        {{{2, locker}, {3, intruder}}, {}},
        {{{2, intruder}, {3, locker}, {4, intruder}}, {{1, 2}}},
        {{{2, menu}, {3, locker}, {4, locker}}, {}},
    };
    for (const auto& [above, steps] : cases)
        EXPECT_EQ(restackings(1, above), steps);
}

TEST(RaiseLimiterTest, AWarSlowsDownACalmIsForgivenAndLooksKeepADistance) {
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

    now += 30s;
    int looksOfOneSecond = 0;
    for (const auto end = now + 1s; now < end; now += std::max(limiter.delay(now), 1ms)) {
        limiter.looked(now);
        ++looksOfOneSecond;
    }
    EXPECT_LE(looksOfOneSecond, 20);
}

} // namespace
} // namespace velmora

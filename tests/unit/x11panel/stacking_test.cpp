#include "platform/x11/panel/PanelStacking.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

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

} // namespace
} // namespace velmora

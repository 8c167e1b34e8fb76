#include "platform/x11/panel/PanelPlacement.h"

#include <climits>
#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(PlacementTest, LiesBelowTheDocksOfItsScreenAndReservesWhereNoScreenIsAbove) {
    const QRect only(0, 0, 1280, 800), right(1280, 0, 1920, 1080), below(0, 800, 1280, 1024);
    constexpr int height = 24;
    const TopStrut panel{30, 0, 1279}, wide{30, 0, INT_MAX}, second{40, 100, 200};
    const struct {
        QList<QRect> screens; // the first one is the panel's
        QList<TopStrut> docks;
        int top; // of the panel
        std::optional<TopStrut> strut;
    } cases[] = {
        {{only}, {}, 0, TopStrut{24, 0, 1279}},
        {{only}, {panel}, 30, TopStrut{54, 0, 1279}},
        {{only}, {wide, second}, 40, TopStrut{64, 0, 1279}},
        {{only}, {{800, 0, 1279}, panel}, 30, TopStrut{54, 0, 1279}},
        {{only}, {{INT_MAX, 0, INT_MAX}, {401, 0, 1279}}, 0, TopStrut{24, 0, 1279}},
        {{only}, {{400, 0, 1279}}, 400, TopStrut{424, 0, 1279}},
        {{right, only}, {panel}, 0, TopStrut{24, 1280, 3199}},
        {{right, only}, {panel, {28, 1280, 3199}}, 28, TopStrut{52, 1280, 3199}},
        // A dock of the lower screen takes all of the upper one with it.
        {{below, only}, {panel, {830, 0, 1279}}, 830, {}},
        {{only, below}, {panel, {830, 0, 1279}}, 30, TopStrut{54, 0, 1279}},
    };
    for (const auto& [screens, docks, top, strut] : cases) {
        SCOPED_TRACE(testing::Message() << screens.first().left() << ' ' << top);
        const QRect place = panelPlace(screens.first(), height, docks);
        EXPECT_EQ(place, QRect(screens.first().left(), top, screens.first().width(), height));
        EXPECT_EQ(panelStrut(place, screens), strut);
    }
    EXPECT_EQ(panelPlace({0, 0, 100, 10}, height, {}), QRect(0, 0, 100, 10));
}

} // namespace
} // namespace velmora

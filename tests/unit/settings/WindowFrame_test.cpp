// Where a window comes back.

#include "settings/WindowFrame.h"

#include <gtest/gtest.h>

using namespace velmora;

namespace {

TEST(WindowFrame, ReadsWhatItWroteAndNothingElse) {
    for (const char* text : {"0 0 600 526 2 25", "-1200 -30 1 1 0 0"})
        EXPECT_EQ(WindowFrame::decoded(text).value().encoded(), text);
    EXPECT_EQ(WindowFrame::decoded("1 2 3 4").value().encoded(), "1 2 3 4 16 44");
    for (const char* text :
         {"", "1 2 3", "1 2 3 4 5", "1 2 3 4 5 6 7", "a b c d", "1 2 0 4", "1 2 3 -4",
          "1 2 3 4 -1 6", "1 2 2147483647 4", "-2147483648 2 3 4", "99999999999 1 1 1",
          "1.5 2 3 4"})
        EXPECT_FALSE(WindowFrame::decoded(text)) << text;
}

TEST(WindowFrame, LiesWholeInTheAreaThatItCoversMost) {
    const QList<QRect> one{{0, 24, 1000, 776}};
    const QList<QRect> two{{0, 24, 1000, 776}, {1000, 100, 1280, 1024}};
    const struct {
        const char* name;
        QList<QRect> areas;
        const char* saved;
        const char* fitted;
    } cases[] = {
        {"in the middle", one, "50 60 700 600 4 30", "50 60 700 600 4 30"},
        {"along all edges", one, "0 24 996 746 4 30", "0 24 996 746 4 30"},
        {"down to the edge", one, "10 190 600 600 4 30", "10 170 600 600 4 30"},
        {"title bar under the bar", one, "10 0 600 600 4 30", "10 24 600 600 4 30"},
        {"partly right", one, "900 30 600 600 4 30", "396 30 600 600 4 30"},
        {"above and left", one, "-90 -90 700 600 4 30", "0 24 700 600 4 30"},
        {"on both", two, "900 200 1200 600 4 30", "1000 200 1200 600 4 30"},
        {"screen is gone", one, "1300 300 700 600 4 30", "296 170 700 600 4 30"},
        {"too large", one, "0 0 5000 5000 4 30", "0 24 996 746 4 30"},
        {"too small", one, "10 30 5 5 4 30", "10 30 500 400 4 30"},
        {"no room", {{50, 24, 320, 240}}, "10 10 700 600 4 30", "50 24 500 400 4 30"},
    };
    for (const auto& [name, areas, saved, fitted] : cases) {
        const WindowFrame frame = WindowFrame::decoded(saved).value();
        EXPECT_EQ(frame.fitted(frame.homeArea(areas), {500, 400}).encoded(), fitted) << name;
    }
}

} // namespace

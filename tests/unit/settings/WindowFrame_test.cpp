// Where a window comes back.

#include "settings/WindowFrame.h"

#include <gtest/gtest.h>

using namespace velmora;

namespace {

TEST(WindowFrame, ReadsWhatItWroteAndNothingElse) {
    for (const QRect& frame : {QRect(0, 0, 600, 526), QRect(-1200, -30, 1, 1)})
        EXPECT_EQ(WindowFrame::decoded(WindowFrame::encoded(frame)), frame);
    for (const char* text :
         {"", "1 2 3", "1 2 3 4 5", "a b c d", "1 2 0 4", "1 2 3 -4", "1 2 2147483647 4",
          "-2147483648 2 3 4", "99999999999 1 1 1", "1.5 2 3 4"})
        EXPECT_FALSE(WindowFrame::decoded(text)) << text;
}

TEST(WindowFrame, LiesOnAScreen) {
    constexpr QSize minimum(600, 526);
    const QRect left(0, 0, 1000, 800);
    const QRect right(1000, 100, 1280, 1024);
    const struct {
        const char* name;
        QRect frame;
        QList<QRect> screens;
        QRect expected;
    } cases[] = {
        {"as it was", {50, 60, 700, 600}, {left}, {50, 60, 700, 600}},
        {"second screen", {1300, 300, 700, 600}, {left, right}, {1300, 300, 700, 600}},
        {"that screen is gone", {1300, 300, 700, 600}, {left}, {300, 200, 700, 600}},
        {"above and left", {-90, -90, 700, 600}, {left}, {0, 0, 700, 600}},
        {"most of it right", {900, 200, 700, 600}, {left, right}, {1000, 200, 700, 600}},
        {"too large", {0, 0, 5000, 5000}, {left}, {0, 0, 1000, 800}},
        {"too small", {10, 10, 5, 5}, {left}, {10, 10, 600, 526}},
        {"small screen", {10, 10, 700, 600}, {{0, 0, 320, 240}}, {0, 0, 600, 526}},
        {"no screen", {10, 10, 700, 600}, {}, {10, 10, 700, 600}},
    };
    for (const auto& [name, frame, screens, expected] : cases)
        EXPECT_EQ(WindowFrame::onScreen(frame, screens, minimum), expected) << name;
}

} // namespace

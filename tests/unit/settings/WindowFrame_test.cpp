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

TEST(WindowFrame, StaysInReachOrMovesOntoAScreen) {
    constexpr QSize minimum(600, 526);
    const QList<QRect> one{{0, 0, 1000, 800}};
    const QList<QRect> both{{0, 0, 1000, 800}, {1000, 100, 1280, 1024}};
    const QList<QRect> small{{0, 0, 320, 240}};
    const struct {
        const char* name;
        QRect frame;
        QList<QRect> screens;
        QRect inReach;
        QRect onScreen;
    } cases[] = {
        {"in the middle", {50, 60, 700, 600}, one, {50, 60, 700, 600}, {50, 60, 700, 600}},
        {"down to the edge", {10, 174, 600, 600}, one, {10, 174, 600, 600}, {10, 164, 600, 600}},
        {"partly left", {-500, 10, 600, 600}, one, {-500, 10, 600, 600}, {0, 10, 600, 600}},
        {"partly right", {900, 10, 600, 600}, one, {900, 10, 600, 600}, {400, 10, 600, 600}},
        {"above and left", {-90, -90, 700, 600}, one, {0, 0, 700, 600}, {0, 0, 700, 600}},
        {"below", {10, 795, 600, 600}, one, {10, 164, 600, 600}, {10, 164, 600, 600}},
        {"on both", {900, 200, 1200, 600}, both, {900, 200, 1200, 600}, {1000, 200, 1200, 600}},
        {"higher", {1300, 20, 700, 600}, both, {1300, 100, 700, 600}, {1300, 100, 700, 600}},
        {"screen is gone", {1300, 300, 700, 600}, one, {300, 164, 700, 600}, {300, 164, 700, 600}},
        {"too large", {0, 0, 5000, 5000}, one, {0, 0, 1000, 800}, {0, 0, 1000, 764}},
        {"too small", {10, 10, 5, 5}, one, {10, 10, 600, 526}, {10, 10, 600, 526}},
        {"small screen", {10, 10, 700, 600}, small, {10, 10, 600, 526}, {0, 0, 600, 526}},
        {"no screen", {10, 10, 700, 600}, {}, {10, 10, 700, 600}, {10, 10, 700, 600}},
    };
    for (const auto& [name, frame, screens, inReach, onScreen] : cases) {
        EXPECT_EQ(WindowFrame::inReach(frame, screens, minimum), inReach) << name;
        EXPECT_EQ(WindowFrame::onScreen(frame, screens, minimum), onScreen) << name;
    }
}

} // namespace

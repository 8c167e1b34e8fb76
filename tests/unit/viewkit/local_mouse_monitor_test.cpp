#include "viewkit/LocalMouseMonitor.h"

#include "support/Mouse.h"

#include <gmock/gmock.h>
#include <optional>
#include <tuple>
#include <vector>

namespace velmora {
namespace {

using Kind = LocalMouseEvent::Kind;
using testing::ElementsAre;
using Seen = std::tuple<Kind, double, double>; // what, where, the movement

/// A window whose only view counts the presses, moves and releases that reach it.
struct CountingWindow : QWidget {
    CountingWindow() { show(); }
    void mousePressEvent(QMouseEvent*) override { ++events; }
    void mouseMoveEvent(QMouseEvent*) override { ++events; }
    void mouseReleaseEvent(QMouseEvent*) override { ++events; }
    int events = 0;
};

TEST(LocalMouseMonitor, HandsOnEachDragAndWithTheReleaseTheMovement) {
    CountingWindow window;
    test::Mouse mouse(window);
    std::vector<Seen> seen;
    std::optional<LocalMouseMonitor> monitor(LocalMouseMonitor([&](const LocalMouseEvent& event) {
        EXPECT_EQ(event.window, &window);
        seen.emplace_back(event.kind, event.locationInWindow.x(), event.movement.x());
    }));
    mouse.hover({10, 5});
    EXPECT_TRUE(seen.empty());
    window.events = 0;
    mouse.press({10, 5});
    for (const double x : {14, 18, 22}) {
        mouse.now += 8;
        mouse.drag({x, 5});
    }
    mouse.now += 7;
    mouse.release({22, 5});
    EXPECT_THAT(
        seen, ElementsAre(
                  Seen{Kind::leftMouseDown, 10, 0}, Seen{Kind::leftMouseDragged, 14, 0},
                  Seen{Kind::leftMouseDragged, 18, 0}, Seen{Kind::leftMouseDragged, 22, 0},
                  Seen{Kind::leftMouseUp, 22, 8}));
    EXPECT_EQ(window.events, 5) << "views see every event";
    seen.clear();
    mouse.press({10, 5});
    mouse.now += 16;
    mouse.release({40, 5});
    EXPECT_EQ(seen.back(), Seen(Kind::leftMouseUp, 40, 30)) << "the release moved, too";

    seen.clear();
    { LocalMouseMonitor last = std::move(*monitor); }
    mouse.click({10, 5});
    EXPECT_TRUE(seen.empty()) << "it ends with the object";
}

} // namespace
} // namespace velmora

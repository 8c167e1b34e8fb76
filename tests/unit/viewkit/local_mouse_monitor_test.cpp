#include "viewkit/LocalMouseMonitor.h"

#include "support/Mouse.h"

#include <gmock/gmock.h>
#include <optional>
#include <vector>

namespace velmora {
namespace {

using Kind = LocalMouseEvent::Kind;
using testing::ElementsAre;

struct Seen {
    Kind kind;
    double x;
    double movement;
    bool operator==(const Seen&) const = default;
};

/// A window whose only view counts the presses, moves and releases that reach it.
struct CountingWindow : QWidget {
    CountingWindow() {
        resize(300, 40);
        show();
    }
    void mousePressEvent(QMouseEvent*) override { ++events; }
    void mouseMoveEvent(QMouseEvent*) override { ++events; }
    void mouseReleaseEvent(QMouseEvent*) override { ++events; }
    int events = 0;
};

class LocalMouseMonitorTest : public testing::Test {
protected:
    CountingWindow window;
    test::Mouse mouse{window};
    std::vector<Seen> seen;
    std::optional<LocalMouseMonitor> monitor{
        LocalMouseMonitor([this](const LocalMouseEvent& event) {
            EXPECT_EQ(event.window, &window);
            seen.push_back({event.kind, event.locationInWindow.x(), event.movement.x()});
        })};
};

TEST_F(LocalMouseMonitorTest, HandsOnEachDragAndWithTheReleaseTheMovement) {
    for (const quint64 rest : {7, 40}) {
        seen.clear();
        window.events = 0;
        mouse.press({10, 5});
        for (const double x : {14, 18, 22}) {
            mouse.now += 8;
            mouse.drag({x, 5});
        }
        mouse.now += rest;
        mouse.release({22, 5});
        EXPECT_THAT(
            seen, ElementsAre(
                      Seen{Kind::leftMouseDown, 10, 0}, Seen{Kind::leftMouseDragged, 14, 0},
                      Seen{Kind::leftMouseDragged, 18, 0}, Seen{Kind::leftMouseDragged, 22, 0},
                      Seen{Kind::leftMouseUp, 22, rest == 7 ? 8.0 : 0.0}));
        EXPECT_EQ(window.events, 5) << "views see every event";
    }
    mouse.press({10, 5});
    mouse.now += 16;
    mouse.release({40, 5});
    EXPECT_EQ(seen.back().movement, 30) << "the release moved, too";
}

TEST_F(LocalMouseMonitorTest, IgnoresPlainMotionAndEndsWithTheToken) {
    mouse.hover({10, 5});
    EXPECT_TRUE(seen.empty());
    LocalMouseMonitor moved = std::move(*monitor);
    mouse.press({10, 5});
    EXPECT_EQ(seen.size(), 1u);
    { LocalMouseMonitor last = std::move(moved); }
    mouse.release({10, 5});
    EXPECT_EQ(seen.size(), 1u);
}

} // namespace
} // namespace velmora

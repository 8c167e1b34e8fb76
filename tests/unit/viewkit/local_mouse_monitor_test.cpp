#include "viewkit/LocalMouseMonitor.h"

#include "support/Mouse.h"
#include "support/TestDisplay.h"

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
            seen.push_back({event.kind, event.locationInWindow.x()});
        })};
};

TEST_F(LocalMouseMonitorTest, ThinsOutDragsForItselfAloneAndLeavesTheLastToTheRelease) {
    mouse.press({10, 5});
    for (int x = 11; x <= 16; ++x, mouse.now += 8)
        mouse.drag({double(x), 5});
    mouse.release({17, 5});
    mouse.now += 100;
    QCoreApplication::processEvents();
    EXPECT_THAT(
        seen, ElementsAre(
                  Seen{Kind::leftMouseDown, 10}, Seen{Kind::leftMouseDragged, 11},
                  Seen{Kind::leftMouseDragged, 13}, Seen{Kind::leftMouseDragged, 15},
                  Seen{Kind::leftMouseUp, 17}));
    EXPECT_EQ(window.events, 8) << "views see every event";
}

TEST_F(LocalMouseMonitorTest, DeliversPendingMotionOnceThePointerRests) {
    mouse.press({10, 5});
    mouse.drag({20, 5});
    mouse.now += 8;
    mouse.drag({28, 5});
    ASSERT_TRUE(test::waitFor([this] { return seen.size() == 3; }));
    EXPECT_EQ(seen.back(), (Seen{Kind::leftMouseDragged, 28}));
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

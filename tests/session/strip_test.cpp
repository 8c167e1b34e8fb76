// A strip with more buttons than fit: dragging, coasting, and what a drag does to the button it
// began on.

#include "session/Session.h"

#include <QElapsedTimer>
#include <algorithm>
#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

constexpr int barMiddle = 16;

class Strip : public testing::Test {
protected:
    Strip() : session({.topInset = 32, .shortcuts = sixtyButtons()}) {
        session.launch();
        EXPECT_TRUE(waitFor([this] { return session.buttons().size() > 3; }));
    }

    static QList<ShortcutButton> sixtyButtons() {
        QList<ShortcutButton> buttons;
        for (int i = 1; i <= 60; ++i)
            buttons.append(
                {u"Number %1"_s.arg(i), u"star"_s, ExecuteShellCommand{u"echo %1"_s.arg(i)},
                 ButtonAlignment::left});
        return buttons;
    }

    /// What the left strip shows.
    QImage strip() { return screenshot(session.client(), QRect(0, 0, 650, 32)); }

    /// Waits until the strip stands still: the same picture for longer than a coasting tick.
    bool waitUntilStill() {
        QImage last = strip();
        QElapsedTimer unchanged;
        unchanged.start();
        return waitFor([&] {
            QImage now = strip();
            if (now != last) {
                last = std::move(now);
                unchanged.restart();
            }
            return unchanged.elapsed() > 150;
        });
    }

    /// Presses at `from` and moves to `to` in `steps`, one every `interval` milliseconds.
    void drag(int from, int to, int steps, int interval) {
        session.driver().move(from, barMiddle);
        session.driver().pressButton(1);
        for (int step = 1; step <= steps; ++step) {
            QThread::msleep(static_cast<unsigned>(interval));
            session.driver().move(from + (to - from) * step / steps, barMiddle);
        }
    }

    /// Whether the strip moves on, further than by what was under way.
    bool isCoasting() {
        auto last = session.buttons();
        int moves = 0;
        const auto movesOn = [&] {
            const auto now = session.buttons();
            moves += now != last;
            last = now;
            return moves >= 5;
        };
        return waitFor(movesOn, 500);
    }

    Session session;
};

TEST_F(Strip, FollowsADragAndStopsAtItsEnds) {
    const auto start = session.buttons();
    drag(600, 200, 20, 20);
    QThread::msleep(40);                 // held still, so that the release carries no movement
    const auto held = session.buttons(); // places: colours change with the hover
    EXPECT_NE(held, start);
    session.driver().releaseButton(1);
    EXPECT_TRUE(waitUntilStill());
    EXPECT_EQ(session.buttons(), held)
        << "a strip that was held still before the release must not coast";

    // Back beyond the start: the first button stands where it stood.
    for (int i = 0; i < 2; ++i) {
        drag(100, 640, 10, 20);
        session.driver().releaseButton(1);
    }
    EXPECT_TRUE(waitUntilStill());
    session.driver().move(700, 500);
    EXPECT_TRUE(waitFor([&] { return session.buttons() == start; }));

    EXPECT_THAT(session.log(), testing::IsEmpty()) << "no drag may fire a button";
}

TEST_F(Strip, CoastsAfterAFlickAndATouchStopsIt) {
    const QPoint end(480, barMiddle);
    const auto flick = [&] {
        drag(600, 500, 5, 17);
        // At once, the server makes one movement of this and the next; it may do so when it is
        // slow.
        QThread::msleep(5);
        // Still moving at the release: the movement since the last drag event is the speed.
        session.driver().move(end.x(), end.y());
        session.driver().releaseButton(1);
        return isCoasting();
    };
    const auto stopsOnAButton = [&] {
        EXPECT_TRUE(waitFor(flick));
        session.driver().pressButton(1);
        EXPECT_TRUE(waitUntilStill());
        const auto buttons = session.buttons();
        const bool isOnButton = std::ranges::any_of(buttons, [&](const QRect& button) {
            return button.marginsRemoved({4, 0, 4, 0}).contains(end);
        });
        session.driver().releaseButton(1);
        return isOnButton;
    };
    // The touch is a click as well, on the button that came to lie there; else once more.
    EXPECT_TRUE(waitFor(stopsOnAButton));
    EXPECT_TRUE(session.waitForLog(u"✅ Executed shell command"_s));
}

} // namespace

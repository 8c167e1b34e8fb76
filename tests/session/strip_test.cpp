// A strip with more buttons than fit: dragging, coasting, and what a drag does to the button it
// began on.

#include "session/Session.h"

#include <QElapsedTimer>
#include <algorithm>
#include <cmath>
#include <gmock/gmock.h>
#include <xcb/xinput.h>
#include <xcb/xtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

constexpr int barMiddle = 16;
constexpr int firstNumber = 101; // as wide as all the others

/// A hand with a mouse. The server itself keeps the times between its reports, and a second client
/// sees which they became.
class Hand {
public:
    Hand() {
        xcb_discard_reply(watcher_, xcb_input_xi_query_version(watcher_, 2, 2).sequence);
        const struct {
            xcb_input_event_mask_t head{XCB_INPUT_DEVICE_ALL_MASTER, 1};
            uint32_t mask = XCB_INPUT_XI_EVENT_MASK_RAW_MOTION;
        } wanted;
        xcb_input_xi_select_events(watcher_, watcher_.root(), 1, &wanted.head);
        watcher_.sync();
    }

    /// Presses at `from` and moves to `to`, `speed` points in 16 ms, on a mouse that reports `rate`
    /// times a second; lets go `rest` milliseconds after the last report. Gives the speed of the
    /// last 50 ms in points in 16 ms as the server timed it; nothing when it held reports back.
    std::optional<double> stroke(int from, int to, double speed, int rate, int rest) {
        takeTimes();
        send(XCB_MOTION_NOTIFY, 0, 0, from);
        send(XCB_BUTTON_PRESS, 1, 0, 0);
        std::vector<std::pair<int, int>> reports; // milliseconds from the press, place
        const int length = std::abs(to - from);
        for (int i = 1, time = 0, x = from; x != to; ++i) {
            const double elapsed = 1000.0 * i / rate;
            const int moved = std::min(static_cast<int>(elapsed * speed / 16), length);
            const int place = to < from ? from - moved : from + moved;
            if (place == x)
                continue; // a mouse tells changes only
            reports.emplace_back(std::lround(elapsed), place);
            send(XCB_MOTION_NOTIFY, 0, reports.back().first - time, place);
            std::tie(time, x) = reports.back();
        }
        send(XCB_BUTTON_RELEASE, 1, rest, 0);
        client_.sync();

        std::vector<uint32_t> times = takeTimes();
        if (times.size() != reports.size() + 1)
            return {};
        times.erase(times.begin());
        size_t first = times.size() - 1;
        for (; first > 0 && times.back() - times[first] < 50; --first) {
            const int late = int(times[first] - times[first - 1]) -
                             (reports[first].first - reports[first - 1].first);
            if (late > 8)
                return {};
        }
        return 16.0 * std::abs(reports.back().second - reports[first].second) /
               (times.back() - times[first]);
    }

private:
    /// The server's times of the pointer's movements since it was asked last.
    std::vector<uint32_t> takeTimes() {
        watcher_.sync();
        std::vector<uint32_t> times;
        while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(watcher_)})
            times.push_back(reinterpret_cast<xcb_input_raw_motion_event_t&>(*event).time);
        return times;
    }

    void send(uint8_t type, uint8_t detail, int pause, int x) {
        xcb_test_fake_input(
            client_, type, detail, static_cast<uint32_t>(pause), client_.root(),
            static_cast<int16_t>(x), barMiddle, 0);
    }

    XClient client_;
    XClient watcher_;
};

class Strip : public testing::Test {
protected:
    Strip() : session({.topInset = 32, .shortcuts = ninetyButtons()}) {
        session.launch();
        EXPECT_TRUE(waitFor([this] { return session.buttons().size() > 3; }));
        start = session.buttons();
    }

    static QList<ShortcutButton> ninetyButtons() {
        QList<ShortcutButton> buttons;
        for (int number = firstNumber; number < firstNumber + 90; ++number)
            buttons.append(
                {QString::number(number),
                 {},
                 ExecuteShellCommand{u"echo %1"_s.arg(number)},
                 ButtonAlignment::left});
        buttons.append(
            {u"right"_s, {}, ExecuteShellCommand{u"echo right"_s}, ButtonAlignment::right});
        return buttons;
    }

    /// Waits until the strip on the left stands still, in the program's own time: it lights the
    /// button on the right up and down, and a strip that coasts moves in so many turns.
    bool waitUntilStill() {
        const QPoint other(start.back().left() + 5, barMiddle);
        const auto picture = [&] { return screenshot(session.client(), QRect(0, 0, 650, 32)); };
        const auto light = [&] { return qGray(pixel(session.client(), other)); };
        session.driver().move(other.x(), 500);
        return waitFor([&] {
            const QImage before = picture();
            const int unlit = light();
            for (const bool lit : {true, false, true, false, true, false}) {
                constexpr int moreThanATick = 17;
                QThread::msleep(moreThanATick);
                session.driver().move(other.x(), lit ? barMiddle : 500);
                if (!waitFor([&] { return lit == (light() > unlit); }))
                    return false;
            }
            return picture() == before;
        });
    }

    /// Clicks at that place; the number of the button there, 0 between two of them.
    int clickAt(int x) {
        // What the button on the right does comes after.
        const QString then = u"🚀 Executing action: Run echo right"_s;
        const auto count = [&] { return session.log().count(then); };
        const auto before = count();
        const int other = start.back().center().x();
        for (const int place : {x, other}) {
            session.driver().move(place, barMiddle);
            session.driver().click();
        }
        EXPECT_TRUE(waitFor([&] { return count() > before; }));
        const QStringList actions = session.log().filter(u"🚀"_s);
        return actions.size() > 1 ? actions[actions.size() - 2].section(u' ', -1).toInt() : 0;
    }

    /// How far the strip is scrolled.
    int offset() {
        const QRect button = session.buttons()[1];
        const int pitch = start[2].left() - start[1].left();
        const int number = clickAt(button.center().x());
        return start[0].left() + (number - firstNumber) * pitch - button.left();
    }

    Session session;
    Hand hand;
    std::vector<QRect> start; ///< the buttons' places before all
};

TEST_F(Strip, FollowsADragAndStopsAtItsEnds) {
    for (const int speed : {16, 8}) {
        hand.stroke(600, 200, speed, 125, 40);
        const auto held = session.buttons(); // places: colours change with the hover
        EXPECT_NE(held, start);
        EXPECT_TRUE(waitUntilStill());
        EXPECT_EQ(session.buttons(), held) << "the hand was resting when it let go";
    }
    // Back beyond the start: the first button stands where it stood.
    for (int i = 0; i < 3; ++i)
        hand.stroke(100, 640, 40, 60, 0);
    EXPECT_TRUE(waitUntilStill());
    EXPECT_EQ(session.buttons(), start);
    EXPECT_THAT(session.log(), testing::IsEmpty()) << "no drag may fire a button";
}

TEST_F(Strip, AFlickCoastsAsFarOnAnyMouse) {
    const struct {
        int rate, rest; // reports a second; milliseconds from the last one to the release
    } mice[] = {{60, 0}, {60, 13}, {125, 5}, {250, 0}, {500, 1}, {1000, 0}};
    for (const auto& [rate, rest] : mice) {
        SCOPED_TRACE(testing::Message() << rate << " Hz, let go after " << rest << " ms");
        std::optional<double> speed;
        double travelled = 0;
        ASSERT_TRUE(waitFor([&] {
            const int before = offset();
            speed = hand.stroke(600, 500, 8, rate, rest);
            EXPECT_TRUE(waitUntilStill());
            travelled = offset() - before - 95; // 5 of the 100 are the threshold
            return speed.has_value();
        })) << "the server never kept the times";
        // The speed falls by 2 % a tick, down to half a point: 368 points from 8 points a tick.
        double expected = 0;
        for (double tick = *speed * 0.98; tick >= 0.5; tick *= 0.98)
            expected += tick;
        EXPECT_GE(travelled, 0.7 * expected);
        EXPECT_LE(travelled, 1.3 * expected);
    }
}

TEST_F(Strip, ATouchStopsItAndIsAClick) {
    hand.stroke(600, 500, 16, 250, 0);
    const auto released = session.buttons();
    EXPECT_TRUE(waitFor([&] { return session.buttons() != released; }));
    const int pitch = start[2].left() - start[1].left();
    // Between two buttons a touch clicks none; the second one falls on a button.
    int place = 500;
    int touched = clickAt(place);
    if (touched == 0)
        touched = clickAt(place -= pitch / 2);
    EXPECT_NE(touched, 0);
    EXPECT_TRUE(waitUntilStill());
    EXPECT_EQ(clickAt(place), touched);
}

} // namespace

// A strip with more buttons than fit: dragging, coasting, and what a drag does to the button it
// began on.

#include "session/Session.h"

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
            uint32_t mask = XCB_INPUT_XI_EVENT_MASK_RAW_MOTION |
                            XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS |
                            XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_RELEASE;
        } wanted;
        xcb_input_xi_select_events(watcher_, watcher_.root(), 1, &wanted.head);
    }

    /// Presses at `from` and moves to `to`, `speed` points in 16 ms, on a mouse that reports `rate`
    /// times a second; lets go `rest` milliseconds after the last report. Gives the last speed in
    /// points in 16 ms as the server timed it; nothing when a busy server made the hand rest or
    /// change its speed.
    std::optional<double> stroke(int from, int to, double speed, int rate, int rest) {
        send(XCB_MOTION_NOTIFY, 0, 0, from);
        takeTimes();
        send(XCB_BUTTON_PRESS, 1, 0, 0);
        std::vector<int> places{from};
        for (int i = 1, time = 0; places.back() != to; ++i) {
            const double elapsed = 1000.0 * i / rate;
            const int moved = std::min(int(elapsed * speed / 16), std::abs(to - from));
            const int place = to < from ? from - moved : from + moved;
            if (place == places.back())
                continue; // a mouse tells changes only
            places.push_back(place);
            send(XCB_MOTION_NOTIFY, 0, int(std::lround(elapsed)) - time, place);
            time = int(std::lround(elapsed));
        }
        send(XCB_BUTTON_RELEASE, 1, rest, 0);
        const std::vector<uint32_t> times = takeTimes();
        if (times.size() != places.size() + 1)
            throw std::runtime_error("the server left out a report");
        const size_t last = places.size() - 1;
        const auto speedSince = [&](size_t first) {
            return 16.0 * std::abs(places[last] - places[first]) / (times[last] - times[first]);
        };
        size_t late = last;
        while (late > 0 && times.back() - times[late] < 60)
            --late;
        constexpr uint32_t longestRest = 28;
        constexpr double slowest = 2; // points in 16 ms
        const double reached = speedSince(late);
        const bool isSteady = std::abs(reached / speedSince(0) - 1) < 0.1;
        if (times.back() - times[last] > longestRest || reached < slowest || !isSteady)
            return {};
        return reached;
    }

private:
    void send(uint8_t type, uint8_t detail, int pause, int x) {
        xcb_test_fake_input(
            client_, type, detail, static_cast<uint32_t>(pause), client_.root(),
            static_cast<int16_t>(x), barMiddle, 0);
    }

    /// The server's times of all reports, presses and releases since it was asked last.
    std::vector<uint32_t> takeTimes() {
        client_.sync();
        watcher_.sync();
        std::vector<uint32_t> times;
        while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(watcher_)})
            times.push_back(reinterpret_cast<xcb_input_raw_motion_event_t&>(*event).time);
        return times;
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
        unlit = light();
    }

    static QList<ShortcutButton> ninetyButtons() {
        QList<ShortcutButton> buttons;
        for (int number = firstNumber; number < firstNumber + 90; ++number)
            buttons.append(
                {QString::number(number),
                 {},
                 ExecuteShellCommand{u"echo %1"_s.arg(number)},
                 ButtonAlignment::left});
        buttons.append({u"right"_s, {}, OpenUrl{}, ButtonAlignment::right});
        return buttons;
    }

    QImage picture() { return screenshot(session.client(), QRect(0, 0, 650, 32)); }

    /// How light the ground of the button on the right is.
    int light() { return qGray(pixel(session.client(), start.back().center() - QPoint(0, 8))); }

    /// Has the program light the button on the right up and down again.
    void takeTurn() {
        for (const int y : {barMiddle, 500}) {
            session.driver().move(start.back().center().x(), y);
            EXPECT_TRUE(waitFor([&] { return (light() > unlit) == (y == barMiddle); }));
        }
    }

    /// Waits until the strip stands still in the program's own time: one that coasts moves in so
    /// many of its turns, each more than a tick apart.
    bool waitUntilStill() {
        return waitFor([&] {
            const QImage before = picture();
            for (int turn = 0; turn < 4; ++turn) {
                QThread::msleep(17);
                takeTurn();
            }
            return picture() == before;
        });
    }

    /// By the wheel, which ends what coasts.
    void backToTheStart() {
        session.driver().move(start[1].center().x(), barMiddle);
        for (int notch = 0; notch < 15; ++notch)
            session.driver().click(4);
        takeTurn();
        EXPECT_EQ(session.buttons(), start);
    }

    QStringList actions() { return session.log().filter(u"🚀"_s); }

    /// How far the strip is scrolled: a button that is clicked tells its number.
    int offset() {
        const QRect button = session.buttons()[1];
        const auto before = actions().size();
        session.driver().move(button.center().x(), barMiddle);
        session.driver().click();
        EXPECT_TRUE(waitFor([&] { return actions().size() > before; }));
        const int number = actions().last().section(u' ', -1).toInt() - firstNumber;
        const int pitch = start[2].left() - start[1].left();
        return start[0].left() + number * pitch - button.left();
    }

    Session session;
    Hand hand;
    std::vector<QRect> start; ///< the buttons' places before all
    int unlit;
};

TEST_F(Strip, FollowsADragAndStopsAtItsEnds) {
    hand.stroke(600, 200, 8, 125, 40);
    takeTurn();
    const auto held = session.buttons(); // places: colours change with the hover
    EXPECT_NE(held, start);
    EXPECT_TRUE(waitUntilStill());
    EXPECT_EQ(session.buttons(), held) << "the hand was resting when it let go";
    // Back beyond the start: the first button stands where it stood.
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
        for (int attempt = 0; attempt < 50 && !speed; ++attempt) {
            backToTheStart();
            speed = hand.stroke(600, 500, 8, rate, rest);
        }
        ASSERT_TRUE(speed) << "the server never kept the speed";
        EXPECT_TRUE(waitUntilStill());
        const double travelled = offset() - 95; // 5 of the 100 are the threshold
        // The speed falls by 2 % a tick, down to half a point: 368 points from 8 points a tick.
        EXPECT_NEAR((travelled * 0.02 + 0.5) / 0.98, *speed, 0.3 * *speed);
    }
}

TEST(CrowdedBar, GivesEveryButtonToDragAndWheelWithoutANotch) {
    constexpr int count = 80;
    QList<ShortcutButton> shortcuts;
    for (int number = 1; number <= count; ++number)
        shortcuts.append(
            {u"m"_s.repeated(number % 9 + 1), u"star"_s,
             ExecuteShellCommand{u"echo %1"_s.arg(number)},
             number <= count / 2 ? ButtonAlignment::left : ButtonAlignment::right});
    Session session({.screen = {1280, 800}, .shortcuts = shortcuts});
    session.launch();
    Hand hand;
    // Scrolls until the button at that end of a strip runs the command of that number.
    const auto reaches = [&](int end, int number, const std::function<void()>& scroll) {
        for (int i = 0; i < 30; ++i) {
            session.driver().move(end, barMiddle);
            scroll();
            const auto ran = [&] { return session.log().filter(u"🚀"_s); };
            const auto before = ran().size();
            const auto buttons = session.buttons();
            const auto nearest = std::ranges::min_element(
                buttons, {}, [end](const QRect& at) { return std::abs(at.center().x() - end); });
            session.driver().move(nearest->center().x(), barMiddle);
            session.driver().click();
            // It may have gone between two buttons when the strip was still moving.
            if (waitFor([&] { return ran().size() > before; }, 1000) &&
                ran().last().endsWith(u" %1"_s.arg(number)))
                return true;
        }
        return false;
    };
    const auto wheel = [&](uint8_t direction) {
        for (int notch = 0; notch < 10; ++notch)
            session.driver().click(direction);
    };
    const struct {
        int start, end; // of the strip, in pixels
        int first, last;
    } strips[] = {{54, 649, 1, count / 2}, {673, 1268, count / 2 + 1, count}};
    ASSERT_TRUE(waitFor([&] { return session.isBarShown(); }));
    for (const auto& [start, end, first, last] : strips) {
        EXPECT_TRUE(
            reaches(end - 9, last, [&] { hand.stroke(end - 50, start + 50, 40, 125, 40); }));
        EXPECT_TRUE(reaches(start + 9, first, [&] { wheel(4); }));
        EXPECT_TRUE(reaches(end - 9, last, [&] { wheel(5); }));
    }
}

} // namespace

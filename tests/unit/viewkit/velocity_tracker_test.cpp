#include "viewkit/VelocityTracker.h"

#include <cmath>
#include <gtest/gtest.h>

namespace velmora {
namespace {

/// A mouse on which a hand moves at a steady speed; it tells changes, in whole pixels and
/// milliseconds.
struct Mouse {
    int rate; ///< reports a second
    quint64 start = 5000;
    VelocityTracker tracker{};
    double x = 100;
    double time = 0; ///< of the last report, since the start

    void press() { tracker.press({x, 7}, start); }
    /// Moves for `duration` milliseconds at `speed` points in 16 ms.
    void move(double speed, double duration) {
        const double end = time + duration;
        for (const double period = 1000.0 / rate; time + period <= end + 1e-9;) {
            time += period;
            x += speed * period / 16;
            tracker.move({std::floor(x), 7}, now());
        }
    }
    void rest(double duration) { time += duration; }
    /// What a release tells that comes so many milliseconds after the last report.
    QPointF release(int after) { return tracker.movement(now() + quint64(after)); }
    quint64 now() const { return start + quint64(std::lround(time)); }
};

TEST(VelocityTracker, TellsASteadySpeedAtAnyRateAndMomentOfTheRelease) {
    for (const int rate : {60, 125, 250, 500, 1000}) {
        for (const double speed : {8.0, -8.0, 3.0, 40.0}) {
            // As long as the window, much longer, and shorter.
            for (const double duration : {50, 230, 34}) {
                Mouse mouse{.rate = rate};
                mouse.press();
                mouse.move(speed, duration);
                for (int after = 0; after <= 1000.0 / rate; ++after)
                    EXPECT_NEAR(mouse.release(after).x(), speed, 0.6 + std::abs(speed) / 12)
                        << rate << " Hz, after " << after << " ms of " << duration;
            }
        }
    }
}

TEST(VelocityTracker, TellsTheSpeedAtTheEndOfTheWay) {
    for (const int rate : {60, 125, 1000}) {
        Mouse mouse{.rate = rate};
        mouse.press();
        EXPECT_EQ(mouse.release(0), QPointF()) << "never moved";
        mouse.move(8, 200);
        EXPECT_EQ(mouse.release(32), QPointF());
        EXPECT_EQ(mouse.release(5000), QPointF());
        mouse.rest(500);
        mouse.tracker.move({mouse.x + 2, 7}, mouse.now());
        mouse.tracker.move({mouse.x + 3, 7}, mouse.now() + 1);
        EXPECT_LT(mouse.release(2).x(), 1) << "the finger on the button shook it";
        mouse.rest(500);
        mouse.move(40, 200);
        mouse.move(-8, 70);
        EXPECT_NEAR(mouse.release(1).x(), -8, 1.5) << "it turned round";
        mouse.rest(400);
        mouse.move(8, 50);
        EXPECT_NEAR(mouse.release(0).x(), 7, 2) << "it has just set off";
    }
}

} // namespace
} // namespace velmora

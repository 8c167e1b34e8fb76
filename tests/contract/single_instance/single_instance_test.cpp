// Launches on one display, each with a connection of its own.

#include "platform/x11/session/X11SingleInstance.h"
#include "support/TestDisplay.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <array>
#include <atomic>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

using namespace velmora;
using namespace velmora::test;

namespace {

/// What a launch has of the session.
struct Launch {
    std::unique_ptr<X11Connection> connection = X11Connection::open();
    X11SingleInstance instance{*connection};
};

TEST(SingleInstance, ASecondLaunchAsksTheFirstToComeForward) {
    Launch first;
    ASSERT_TRUE(first.instance.claim());
    // Asked before anyone listens: kept.
    EXPECT_FALSE(Launch().instance.claim());
    first.connection->startDelivery();
    int asked = 0;
    ASSERT_TRUE(waitFor([&] {
        first.instance.setComeForwardHandler([&] { ++asked; });
        return asked == 1;
    }));
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(Launch().instance.claim());
    EXPECT_LT(clock.elapsed(), 100);
    EXPECT_TRUE(waitFor([&] { return asked == 2; }));
}

TEST(SingleInstance, OfLaunchesAtTheSameMomentOneStays) {
    for (int round = 0; round < 50; ++round) {
        constexpr int count = 4;
        std::array<Launch, count> launches;
        std::atomic<int> ready = 0;
        std::atomic<int> winners = 0;
        std::vector<std::thread> threads;
        for (Launch& launch : launches)
            threads.emplace_back([&] {
                for (++ready; ready < count;)
                    std::this_thread::yield();
                winners += launch.instance.claim();
            });
        for (std::thread& thread : threads)
            thread.join();
        ASSERT_EQ(winners, 1);
    }
}

TEST(SingleInstance, AnInstanceThatNeverGoesIsNotWaitedForForever) {
    Launch old;
    ASSERT_TRUE(old.instance.claim());
    old.instance.makeRoom();
    Launch launch;
    QElapsedTimer clock;
    clock.start();
    EXPECT_TRUE(launch.instance.claim());
    EXPECT_LT(clock.elapsed(), 8000);
    EXPECT_FALSE(Launch().instance.claim()) << "the new one has the place";
}

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    const TestDisplay display;
    return RUN_ALL_TESTS();
}

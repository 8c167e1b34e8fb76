// Launches on one display, each with a connection of its own.

#include "platform/Relaunch.h"
#include "platform/x11/X11SingleInstance.h"
#include "support/TestDisplay.h"
#include "support/XClient.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
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

/// Whether a launch waits for the instance that has the place to go.
bool isWaitedFor() {
    const XClient client;
    const Reply<xcb_get_selection_owner_reply_t> place(xcb_get_selection_owner_reply(
        client, xcb_get_selection_owner(client, client.atom("_VELMORA_INSTANCE")), nullptr));
    const Reply<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
        client, xcb_get_window_attributes(client, place->owner), nullptr));
    return attributes && attributes->all_event_masks & XCB_EVENT_MASK_STRUCTURE_NOTIFY;
}

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

/// Names the file that a relaunched instance of this program makes once it has the place.
constexpr char relaunchMark[] = "VELMORA_TEST_RELAUNCH_MARK";

TEST(Relaunch, HandsThePlaceOn) {
    const QTemporaryDir folder;
    const QString mark = folder.filePath(QStringLiteral("mark"));
    auto old = std::make_unique<Launch>();
    ASSERT_TRUE(old->instance.claim());
    qputenv(relaunchMark, mark.toUtf8());
    bool completed = false;
    relaunch(old->instance, [&] { completed = true; });
    qunsetenv(relaunchMark);
    EXPECT_FALSE(completed) << "in a later turn";
    EXPECT_TRUE(waitFor([&] { return completed; }));
    EXPECT_TRUE(waitFor(isWaitedFor));
    EXPECT_FALSE(QFile::exists(mark));
    old.reset();
    EXPECT_TRUE(waitFor([&] { return QFile::exists(mark); }));
}

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    if (qEnvironmentVariableIsSet(relaunchMark)) {
        Launch launch;
        QFile mark(qEnvironmentVariable(relaunchMark));
        return launch.instance.claim() && mark.open(QIODevice::WriteOnly) ? 0 : 1;
    }
    const TestDisplay display;
    return RUN_ALL_TESTS();
}

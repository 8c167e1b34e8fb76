#include "foundation/MainQueue.h"

#include "support/TestDisplay.h"

#include <gmock/gmock.h>
#include <thread>

using namespace velmora;

TEST(MainQueue, RunsLaterInOrderOnTheMainThread) {
    std::vector<int> order;
    const auto note = [&](int number) {
        order.push_back(number);
        EXPECT_EQ(QThread::currentThread(), qApp->thread());
    };
    std::thread([&] {
        MainQueue::submit([&] { note(1); });
        MainQueue::submit([&] {
            MainQueue::submit([&] { note(4); }); // from within a task: a later turn
            note(2);
        });
        MainQueue::submit([&] { note(3); });
    }).join();
    EXPECT_THAT(order, testing::IsEmpty());
    EXPECT_TRUE(test::waitFor([&] { return order.size() == 4; }));
    EXPECT_THAT(order, testing::ElementsAre(1, 2, 3, 4));
}

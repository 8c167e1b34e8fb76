#include "foundation/MainQueue.h"

#include "foundation/ActionMessages.h"
#include "support/TestDisplay.h"

#include <gmock/gmock.h>
#include <thread>

using namespace Qt::StringLiterals;
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

TEST(ActionMessages, AHandlerMayReplaceItselfWhileItRuns) {
    ActionMessages messages;
    QStringList answered;
    messages.send(u"showSettings"_s);
    messages.setHandler(u"showSettings"_s, [&, mine = u"first"_s] {
        messages.setHandler(u"showSettings"_s, [&] { answered << u"second"_s; });
        answered << mine;
    });
    for (const QString& message : {u"showSettings"_s, u"showSettings"_s, u"quitApp"_s})
        messages.send(message);
    EXPECT_EQ(answered, (QStringList{u"first"_s, u"second"_s}));
}

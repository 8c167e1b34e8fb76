#include "foundation/MainQueue.h"

#include "foundation/ActionMessages.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>
#include <QTimer>
#include <gmock/gmock.h>
#include <thread>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

TEST(MainQueueTest, RunsLaterInOrderOnTheMainThread) {
    std::vector<int> order;
    QEventLoop loop;
    QThread* ranOn = nullptr;
    std::thread other([&] {
        MainQueue::submit([&] { order.push_back(1); });
        MainQueue::submit([&] {
            order.push_back(2);
            // Submitted from within a task: a later turn.
            MainQueue::submit([&] {
                order.push_back(4);
                loop.quit();
            });
            order.push_back(3);
            ranOn = QThread::currentThread();
        });
    });
    other.join();
    EXPECT_THAT(order, testing::IsEmpty());
    QTimer::singleShot(10'000, &loop, &QEventLoop::quit);
    loop.exec();
    EXPECT_THAT(order, testing::ElementsAre(1, 2, 3, 4));
    EXPECT_EQ(ranOn, QCoreApplication::instance()->thread());
}

TEST(ActionMessagesTest, AHandlerMayReplaceItselfWhileItRuns) {
    ActionMessages messages;
    QStringList answered;
    messages.send(u"showSettings"_s);
    messages.setHandler(u"showSettings"_s, [&] {
        const QString mine = u"first"_s;
        messages.setHandler(u"showSettings"_s, [&] { answered << u"second"_s; });
        answered << mine;
    });
    messages.send(u"showSettings"_s);
    messages.send(u"showSettings"_s);
    messages.send(u"quitApp"_s);
    EXPECT_EQ(answered, (QStringList{u"first"_s, u"second"_s}));
}

} // namespace
} // namespace velmora

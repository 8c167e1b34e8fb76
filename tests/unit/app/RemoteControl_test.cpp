// Launches in one session, each with a remote control of its own.

#include "app/RemoteControl.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <array>
#include <atomic>
#include <gtest/gtest.h>
#include <memory>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

using Claim = RemoteControl::Claim;

/// A runtime folder whose path is longer than a socket's address may be.
class RuntimeFolder {
public:
    RuntimeFolder() {
        const QString path = folder_.filePath(QString(120, u'x'));
        QDir().mkpath(path);
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(path));
    }

private:
    QTemporaryDir folder_;
};

struct RemoteControlTest : testing::Test {
    static RemoteControl launch() { return RemoteControl(sessionName); }
    static inline const QString sessionName = u":7/1"_s;
    RuntimeFolder folder;
};

TEST_F(RemoteControlTest, HandsEachCommandToTheInstanceAndWaitsUntilItIsCarriedOut) {
    RemoteControl first = launch();
    ASSERT_EQ(first.claim({}), Claim::first);
    std::vector<QByteArray> carriedOut;
    std::atomic<int> answered = 0;
    std::jthread launches([&] {
        for (const char* const command : {"", "toggle", "settings"}) {
            RemoteControl launched = launch();
            answered += launched.claim(command) == Claim::handedOver &&
                        launched.answer().status == 3 &&
                        launched.answer().text == QString(5000, u'ß') + QLatin1StringView(command);
        }
    });
    QTest::qWait(20); // asked before anyone listens: kept
    EXPECT_EQ(answered, 0);
    first.listen([&](const QByteArray& command) {
        carriedOut.push_back(command);
        return RemoteAnswer{3, QString(5000, u'ß') + QString::fromUtf8(command)};
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return answered == 3; }));
    EXPECT_EQ(carriedOut, std::vector<QByteArray>({"", "toggle", "settings"}));
}

TEST_F(RemoteControlTest, OfLaunchesAtTheSameMomentOneStays) {
    for (int round = 0; round < 20; ++round) {
        constexpr int count = 4;
        std::array<RemoteControl, count> launches{launch(), launch(), launch(), launch()};
        std::atomic<int> ready = 0;
        std::atomic<int> winners = 0;
        {
            std::vector<std::jthread> threads;
            for (RemoteControl& each : launches)
                threads.emplace_back([&] {
                    for (++ready; ready < count;)
                        std::this_thread::yield();
                    winners += each.claim({}, std::chrono::milliseconds(20)) == Claim::first;
                });
        }
        ASSERT_EQ(winners, 1);
    }
}

TEST_F(RemoteControlTest, ALaunchOutlastsAnInstanceThatEndsWithoutAnAnswer) {
    for (const bool makesRoomFirst : {false, true}) {
        auto old = std::make_unique<RemoteControl>(sessionName);
        ASSERT_EQ(old->claim({}), Claim::first);
        if (makesRoomFirst)
            old->makeRoom();
        std::atomic<bool> tookOver = false;
        RemoteControl next = launch();
        std::jthread claiming([&] { tookOver = next.claim({}) == Claim::first; });
        QTest::qWait(20);
        EXPECT_FALSE(tookOver);
        old.reset();
        EXPECT_TRUE(QTest::qWaitFor([&] { return tookOver.load(); }));
    }
}

TEST_F(RemoteControlTest, AnInstanceThatDoesNotAnswerIsNotWaitedForForever) {
    RemoteControl stuck = launch();
    ASSERT_EQ(stuck.claim({}), Claim::first);
    EXPECT_EQ(launch().claim({}, std::chrono::milliseconds(50)), Claim::noAnswer);
    EXPECT_EQ(RemoteControl(u":8"_s).claim({}), Claim::first) << "another display";
}

TEST(RemoteControlFolder, TheSettingsFolderIsMadeOnlyWhereItIsNeededAndForTheUserAlone) {
    const QTemporaryDir folder;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.filePath(u"config"_s)));
    const QString settings = folder.filePath(u"config/velmora"_s);
    for (const bool hasRuntimeFolder : {true, false}) {
        qputenv("XDG_RUNTIME_DIR", hasRuntimeFolder ? QFile::encodeName(folder.path()) : "");
        EXPECT_EQ(RemoteControl(u":7"_s).claim({}), Claim::first);
        EXPECT_EQ(QFileInfo::exists(settings), !hasRuntimeFolder);
    }
    EXPECT_FALSE(
        QFileInfo(settings).permissions() &
        (QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther));
}

} // namespace

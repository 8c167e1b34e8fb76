#include "foundation/UserDefaults.h"

#include "support/LogCapture.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QHash>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace velmora {
namespace {

using test::LogCapture;

class UserDefaultsTest : public testing::Test {
protected:
    UserDefaultsTest() {
        QDir().mkpath(folder_);
        (void)std::signal(SIGXFSZ, SIG_IGN);
    }
    ~UserDefaultsTest() override { limitFiles(RLIM_INFINITY); }

    QString path(const QString& name) const { return root_.path() + u'/' + name; }

    static QByteArray contents(const QString& file) {
        QFile opened(file);
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : "(cannot be read)"_ba;
    }

    static void put(const QString& file, const QByteArray& bytes) {
        QFile opened(file);
        ASSERT_TRUE(opened.open(QIODevice::WriteOnly) && opened.write(bytes) == bytes.size());
    }

    /// What the file on disk holds under `key`, as QSettings reads it: under another name, for it
    /// shares what it knows of one file within a process.
    QByteArray stored(const QString& key) {
        const QString copy = path(u"copy%1"_s.arg(++copies_));
        QFile::copy(file_, copy);
        const QSettings settings(copy, QSettings::IniFormat);
        EXPECT_EQ(settings.status(), QSettings::NoError);
        return settings.value(key).toByteArray();
    }

    QStringList filesBeside() const {
        return QDir(folder_).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    /// Runs `command` in the root folder.
    void shell(const QByteArray& command) const {
        const QByteArray line = "cd " + QFile::encodeName(root_.path()) + " && " + command;
        EXPECT_EQ(std::system(line.constData()), 0) << command.constData();
    }

    /// No file of this process may grow beyond `bytes`: a disk that is full.
    static void limitFiles(rlim_t bytes) {
        const rlimit limit{bytes, RLIM_INFINITY};
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    }

    const QTemporaryDir root_;
    const QString folder_ = path(u"velmora"_s);
    const QString file_ = path(u"velmora/velmora.conf"_s);
    int copies_ = 0;
};

/// Runs `body` in a child process, whose failed expectations are the test's.
void inChild(const std::function<void()>& body) {
    const auto run = [&] {
        ::alarm(20);
        body();
        std::fflush(stdout);
        ::_exit(testing::Test::HasFailure());
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

TEST_F(UserDefaultsTest, NothingIsThereUntilSetAndThenForTheUsersEyesOnly) {
    QDir().rmdir(folder_);
    const mode_t mask = ::umask(0);
    UserDefaults defaults(file_);
    EXPECT_FALSE(defaults.data(u"SavedShortcuts"_s).has_value());
    EXPECT_FALSE(defaults.boolean(u"flag"_s));
    defaults.check();
    EXPECT_EQ(defaults.failure(), QString());
    EXPECT_FALSE(QFileInfo::exists(folder_)) << "reading and checking leave nothing";
    for (const bool value : {false, true}) {
        defaults.setBoolean(u"flag"_s, value);
        EXPECT_EQ(defaults.boolean(u"flag"_s), value);
        EXPECT_EQ(stored(u"flag"_s), value ? "true" : "false");
        shell("test $(stat -c %a velmora) = 700 && test $(stat -c %a velmora/*) = 600");
    }
    ::umask(mask);
}

// Each system call of a save fails in turn, or the process is killed at it.
TEST_F(UserDefaultsTest, EveryFaultLeavesTheOldOrTheNew) {
    const QByteArray before(30'000, 'o'), after(20'000, 'n');
    const QString trace = path(u"trace"_s);
    qputenv("ASAN_OPTIONS", "detect_leaks=0"); // needs to trace by itself
    const auto save = [&](const QString& option) {
        return QProcess::execute(
            u"strace"_s, {u"-o"_s, trace, u"-e"_s, option, QStringLiteral(SAVE_ONCE), file_,
                          QString::fromLatin1(after)});
    };
    UserDefaults(file_).setData(u"key"_s, before);
    const QByteArray old = contents(file_);
    ASSERT_EQ(save(u"trace=%file,%desc"_s), 0);
    ASSERT_EQ(stored(u"key"_s), after);
    QStringList calls; // "write:when=7": the seventh of the process
    QHash<QString, int> counts;
    bool saving = false;
    for (const QByteArray& line : contents(trace).split('\n')) {
        const QString name = QString::fromLatin1(line).section(u'(', 0, 0);
        ++counts[name];
        if (line.contains("the save"))
            saving = line.contains("begins");
        else if (saving && name != u"mmap"_s) // the allocator's
            calls << u"%1:when=%2"_s.arg(name, QString::number(counts[name]));
    }
    QStringList told;
    for (const QString& call : calls) {
        for (const QString& fault : {u"error=ENOSPC"_s, u"error=EIO"_s, u"signal=KILL"_s}) {
            SCOPED_TRACE((call + u' ' + fault).toStdString());
            put(file_, old);
            const int status = save(u"inject=%1:%2"_s.arg(call, fault));
            const QByteArray found = stored(u"key"_s);
            EXPECT_TRUE(found == after || found == before) << found.left(60).constData();
            if (fault == u"signal=KILL"_s) {
                EXPECT_EQ(status, -1);
                const UserDefaults next(file_);
            } else if (status == 3) {
                told << call.section(u':', 0, 0);
            } else {
                EXPECT_TRUE(status == 0 && found == after) << status;
            }
            EXPECT_EQ(filesBeside(), QStringList(u"velmora.conf"_s));
        }
    }
    for (const QString& call : {u"openat"_s, u"write"_s, u"rename"_s})
        EXPECT_GE(told.count(call), 2) << call.toStdString();
    EXPECT_EQ(told.count(u"fsync"_s), 4) << "the file's and the folder's";
}

TEST_F(UserDefaultsTest, AFullDiskIsToldOnceAndTriedAgain) {
    const LogCapture log;
    UserDefaults defaults(file_, 50ms);
    defaults.setData(u"key"_s, "old"_ba);
    const QByteArray before = contents(file_);
    const QByteArray large(100'000, 'n');
    limitFiles(before.size() + 10);
    defaults.setData(u"key"_s, large);
    defaults.setBoolean(u"flag"_s, true);
    EXPECT_EQ(defaults.data(u"key"_s), large);
    EXPECT_NE(defaults.failure(), QString());
    EXPECT_EQ(contents(file_), before);
    EXPECT_EQ(log.lines().size(), 1) << log.lines().join(u'\n').toStdString();
    limitFiles(RLIM_INFINITY);
    QEventLoop loop;
    QObject::connect(&defaults, &UserDefaults::failureChanged, &loop, &QEventLoop::quit);
    loop.exec();
    EXPECT_EQ(defaults.failure(), QString());
    EXPECT_EQ(stored(u"key"_s), large);
    EXPECT_EQ(stored(u"flag"_s), "true");
    EXPECT_EQ(log.lines().size(), 2) << log.lines().join(u'\n').toStdString();
}

TEST_F(UserDefaultsTest, WhatWasNeverReadIsNeverReplaced) {
    const QByteArray good = "[General]\nkey=\"precious\"\n";
    for (const char* make :
         {"mkfifo -m 666 velmora/velmora.conf", "ln -s /dev/zero velmora/velmora.conf",
          "mkdir -m 777 velmora/velmora.conf", "truncate -s 100M velmora/velmora.conf",
          "rmdir velmora && touch velmora", "echo key=old >velmora/velmora.conf; chmod 0 velmora/*",
          "echo key=old >velmora/velmora.conf; chmod 0 velmora"}) {
        SCOPED_TRACE(make);
        shell("chmod 777 . && rm -rf velmora && mkdir -m 777 velmora && " + QByteArray(make));
        inChild([&] {
            EXPECT_TRUE(::getuid() != 0 || ::setuid(65534) == 0);
            const LogCapture log;
            QElapsedTimer timer;
            timer.start();
            UserDefaults defaults(file_);
            EXPECT_FALSE(defaults.data(u"key"_s));
            defaults.setData(u"key"_s, "value"_ba);
            EXPECT_LT(timer.elapsed(), 5000);
            EXPECT_EQ(defaults.data(u"key"_s), "value");
            EXPECT_NE(defaults.failure(), QString());
            EXPECT_EQ(log.lines().size(), 1) << log.lines().join(u'\n').toStdString();
            EXPECT_LE(filesBeside().size(), 1);

            shell("mv velmora away; mkdir velmora");
            put(file_, good);
            defaults.setBoolean(u"flag"_s, true);
            EXPECT_EQ(contents(file_), good) << "readable, but for the next start";
            QFile::remove(file_);
            defaults.setBoolean(u"flag"_s, true);
            EXPECT_EQ(stored(u"key"_s), "value") << "nothing there to be replaced";
        });
        shell("rm -rf away");
    }
}

TEST_F(UserDefaultsTest, ALinkStaysALinkAndTheFileItsOwners) {
    const QString real = path(u"real"_s);
    shell("echo old=1 >real; ln -s ../real velmora/between; ln -s between velmora/velmora.conf;"
          "chmod 640 real; test $(id -u) != 0 || chown 65533:65532 real;"
          "stat -c %a:%u:%g real >before");
    UserDefaults defaults(file_);
    defaults.setData(u"key"_s, "first"_ba);
    EXPECT_EQ(QFileInfo(file_).symLinkTarget(), path(u"velmora/between"_s));
    EXPECT_EQ(QFileInfo(path(u"velmora/between"_s)).symLinkTarget(), real);
    shell("stat -c %a:%u:%g real | cmp - before");
    put(file_, contents(file_) + "\nadded=by hand\n");
    for (const bool isGone : {false, true}) {
        SCOPED_TRACE(isGone ? "also a file that has gone" : "there");
        if (isGone)
            QFile::remove(real);
        defaults.setData(u"key"_s, "second"_ba);
        EXPECT_EQ(stored(u"old"_s), "1");
        EXPECT_EQ(stored(u"added"_s), "by hand");
        EXPECT_EQ(stored(u"key"_s), "second");
    }
    EXPECT_TRUE(QFileInfo(file_).isSymLink());
}

TEST_F(UserDefaultsTest, AFileThatDoesNotParseIsKeptAsideEachTime) {
    const LogCapture log;
    UserDefaults running(file_);
    QString aside = file_ + u".unreadable"_s;
    int number = 1;
    for (const QByteArray& bytes :
         {QByteArray(4096, '\0'), "x=1\nhello world\nno equals sign\n"_ba,
          "[General\nflag=true\n"_ba, "x=\"[1,2\nflag=true\n"_ba}) {
        for (const bool atStart : {true, false}) {
            SCOPED_TRACE(bytes.left(20).constData());
            put(file_, bytes);
            UserDefaults starting(atStart ? file_ : path(u"unused"_s));
            UserDefaults& defaults = atStart ? starting : running;
            limitFiles(bytes.size() - 1);
            defaults.setData(u"key"_s, "new"_ba);
            EXPECT_EQ(defaults.data(u"key"_s), "new");
            EXPECT_EQ(contents(file_), bytes) << "what cannot be kept is not replaced";
            limitFiles(RLIM_INFINITY);
            defaults.setBoolean(u"flag"_s, true);
            EXPECT_EQ(contents(aside), bytes);
            EXPECT_EQ(stored(u"key"_s), "new");
            EXPECT_EQ(stored(u"flag"_s), "true");
            EXPECT_EQ(log.lines().filter(aside).size(), 1);
            aside = file_ + u".unreadable-%1"_s.arg(++number);
            EXPECT_FALSE(QFileInfo::exists(aside)) << "once an incident, not once a write";
        }
    }
}

} // namespace
} // namespace velmora

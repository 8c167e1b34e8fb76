#include "foundation/UserDefaults.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

class UserDefaultsTest : public testing::Test {
protected:
    QString path(const QString& name) const { return root_.path() + u'/' + name; }

    static QByteArray contents(const QString& file) {
        QFile opened(file);
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : "(cannot be read)"_ba;
    }

    static void put(const QString& file, const QByteArray& bytes) {
        QFile opened(file);
        ASSERT_TRUE(opened.open(QIODevice::WriteOnly));
        ASSERT_EQ(opened.write(bytes), bytes.size());
    }

    /// What the file on disk holds under `key`. Read under another name: QSettings shares what it
    /// knows of one file within a process.
    QByteArray stored(const QString& key) {
        const QString copy = path(u"copy%1"_s.arg(++copies_));
        QFile::copy(file_, copy);
        return UserDefaults(copy).data(key).value_or("(nothing)"_ba);
    }

    static mode_t mode(const QString& file) {
        struct stat status {};
        ::stat(QFile::encodeName(file).constData(), &status);
        return status.st_mode & 07777;
    }

    const QTemporaryDir root_;
    const QString file_ = path(u"velmora/velmora.conf"_s);
    int copies_ = 0;
};

/// No file of this process may grow beyond `bytes`: a disk that is full.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        (void)std::signal(SIGXFSZ, handler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit before_{};
    void (*handler_)(int);
};

/// The wait status of a child process that runs `body`.
int statusOfChild(const std::function<int()>& body) {
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(body());
    int status = 0;
    ::waitpid(child, &status, 0);
    return status;
}

TEST_F(UserDefaultsTest, KeepsBytesAsTheyAre) {
    QByteArray every;
    for (int byte = 0; byte < 256; ++byte)
        every.append(static_cast<char>(byte)).append("a\\x");
    const QByteArray values[] = {
        ""_ba,
        every,
        "\0"_ba,
        "\"a\", b; [c]=%1\r\n\\x41"_ba,
        "@ByteArray(x)"_ba,
        "スクショ 😀 שלום"_ba,
        QByteArray(1 << 20, '\xff')};
    for (const QByteArray& value : values) {
        UserDefaults defaults(file_);
        defaults.setData(u"SavedShortcuts"_s, value);
        EXPECT_EQ(defaults.data(u"SavedShortcuts"_s), value);
        EXPECT_EQ(stored(u"SavedShortcuts"_s), value);
    }
}

TEST_F(UserDefaultsTest, NothingIsThereUntilSetAndThenForTheUsersEyesOnly) {
    const mode_t mask = ::umask(0);
    UserDefaults defaults(file_);
    EXPECT_FALSE(defaults.data(u"SavedShortcuts"_s).has_value());
    EXPECT_FALSE(defaults.boolean(u"flag"_s));
    EXPECT_FALSE(QFileInfo::exists(path(u"velmora"_s))) << "reading leaves nothing behind";
    for (const bool value : {false, true}) {
        defaults.setBoolean(u"flag"_s, value);
        EXPECT_EQ(defaults.boolean(u"flag"_s), value);
        EXPECT_EQ(stored(u"flag"_s), value ? "true" : "false");
        EXPECT_EQ(mode(path(u"velmora"_s)), 0700u);
        EXPECT_EQ(mode(file_), 0600u);
    }
    ::umask(mask);
}

// Killed at any moment of a write, the file holds one whole value, and the next process can write
// at once whatever the killed one left behind.
TEST_F(UserDefaultsTest, AKillLeavesTheOldOrTheNew) {
    const QByteArray values[] = {QByteArray(300'000, 'a'), QByteArray(200'000, 'b')};
    UserDefaults(file_).setData(u"key"_s, values[0]);
    for (int round = 0; round < 12; ++round) {
        int ends[2];
        ASSERT_EQ(::pipe(ends), 0);
        const pid_t child = ::fork();
        if (child == 0) {
            UserDefaults defaults(file_);
            for (int turn = 0;; ++turn) {
                defaults.setData(u"key"_s, values[turn % 2]);
                if (::write(ends[1], "x", 1) != 1)
                    ::_exit(1);
            }
        }
        char written[3];
        for (char& byte : written)
            ASSERT_EQ(::read(ends[0], &byte, 1), 1);
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        ::close(ends[0]);
        ::close(ends[1]);
        const QByteArray found = stored(u"key"_s);
        EXPECT_TRUE(found == values[0] || found == values[1]) << found.left(60).constData();
        const int status = statusOfChild([this] {
            ::alarm(10);
            UserDefaults(file_).setBoolean(u"flag"_s, true);
            return 0;
        });
        EXPECT_EQ(status, 0);
        EXPECT_EQ(stored(u"flag"_s), "true");
    }
}

TEST_F(UserDefaultsTest, ALockLeftBehindHoldsUpNothing) {
    UserDefaults defaults(file_);
    defaults.setData(u"key"_s, "old"_ba);
    put(file_ + u".lock"_s, {});
    QElapsedTimer timer;
    timer.start();
    defaults.setData(u"key"_s, "new"_ba);
    EXPECT_LT(timer.elapsed(), 5000);
    EXPECT_EQ(stored(u"key"_s), "new");
}

TEST_F(UserDefaultsTest, AFullDiskKeepsWhatWasStored) {
    UserDefaults defaults(file_);
    defaults.setData(u"key"_s, "old"_ba);
    const QByteArray before = contents(file_);
    const QByteArray large(100'000, 'n');
    {
        const FullDisk full(before.size() + 10);
        defaults.setData(u"key"_s, large);
        EXPECT_EQ(defaults.data(u"key"_s), large);
        EXPECT_EQ(contents(file_), before);
    }
    defaults.setBoolean(u"flag"_s, true);
    EXPECT_EQ(stored(u"key"_s), large) << "written with the next write that has room";
    EXPECT_EQ(stored(u"flag"_s), "true");
}

TEST_F(UserDefaultsTest, WithoutAWritableFileValuesLastForTheProcess) {
    put(path(u"plain"_s), "a file");
    QDir().mkpath(file_ + u"/inside"_s);
    for (const QString& file : {path(u"plain/velmora/velmora.conf"_s), file_}) {
        UserDefaults defaults(file);
        defaults.setData(u"key"_s, "value"_ba);
        defaults.setBoolean(u"flag"_s, true);
        EXPECT_EQ(defaults.data(u"key"_s), "value");
        EXPECT_TRUE(defaults.boolean(u"flag"_s));
    }
    EXPECT_EQ(contents(path(u"plain"_s)), "a file");
    EXPECT_TRUE(QFileInfo::exists(file_ + u"/inside"_s));
}

TEST_F(UserDefaultsTest, AFileThatMayNotBeReadIsNotReplaced) {
    UserDefaults(file_).setData(u"key"_s, "old"_ba);
    const QByteArray before = contents(file_);
    ::chmod(QFile::encodeName(root_.path()).constData(), 0755);
    ::chmod(QFile::encodeName(path(u"velmora"_s)).constData(), 0777);
    ::chmod(QFile::encodeName(file_).constData(), 0000);
    const int status = statusOfChild([this] {
        if (::getuid() == 0 && ::setuid(65534) != 0)
            return 2;
        UserDefaults defaults(file_);
        defaults.setData(u"key"_s, "new"_ba);
        return defaults.data(u"key"_s) == "new"_ba ? 0 : 1;
    });
    EXPECT_EQ(status, 0);
    ::chmod(QFile::encodeName(file_).constData(), 0600);
    EXPECT_EQ(contents(file_), before);
}

TEST_F(UserDefaultsTest, ALinkStaysALinkWithWhatAnotherHandChanged) {
    put(path(u"real"_s), "[General]\nold=1\n");
    QDir().mkpath(path(u"velmora"_s));
    ASSERT_TRUE(QFile::link(path(u"real"_s), file_));
    UserDefaults defaults(file_);
    defaults.setData(u"key"_s, "first"_ba);
    EXPECT_TRUE(QFileInfo(file_).isSymLink());
    EXPECT_TRUE(contents(path(u"real"_s)).contains("first"));
    put(file_, contents(file_) + "added=by hand\n");
    defaults.setData(u"key"_s, "second"_ba);
    EXPECT_EQ(stored(u"old"_s), "1");
    EXPECT_EQ(stored(u"added"_s), "by hand");
    EXPECT_EQ(stored(u"key"_s), "second");
}

TEST_F(UserDefaultsTest, AFileThatDoesNotParseIsKeptAside) {
    const QByteArray broken[] = {
        QByteArray(4096, '\0'), "hello world\nno equals sign\n"_ba, "[General\nflag=true\n"_ba};
    QString aside = file_ + u".unreadable"_s;
    int number = 1;
    for (const QByteArray& bytes : broken) {
        SCOPED_TRACE(bytes.left(20).constData());
        QDir().mkpath(path(u"velmora"_s));
        put(file_, bytes);
        const int status = statusOfChild([this] {
            UserDefaults defaults(file_);
            defaults.setData(u"key"_s, "new"_ba);
            defaults.setBoolean(u"flag"_s, true);
            return 0;
        });
        EXPECT_EQ(status, 0);
        EXPECT_EQ(contents(aside), bytes);
        EXPECT_EQ(stored(u"key"_s), "new");
        EXPECT_EQ(stored(u"flag"_s), "true");
        aside = file_ + u".unreadable-%1"_s.arg(++number);
    }
    EXPECT_FALSE(QFileInfo::exists(aside)) << "once an incident, not once a write";

    // What cannot be kept is not replaced.
    put(file_, broken[0]);
    UserDefaults defaults(file_);
    {
        const FullDisk full(1000);
        defaults.setData(u"key"_s, "newer"_ba);
        EXPECT_EQ(defaults.data(u"key"_s), "newer");
        EXPECT_EQ(contents(file_), broken[0]);
    }
    defaults.setBoolean(u"flag"_s, true);
    EXPECT_EQ(contents(aside), broken[0]);
    EXPECT_EQ(stored(u"key"_s), "newer");
}

// A value cut short in the middle, or typed by hand without quotes, is still there to be kept.
TEST_F(UserDefaultsTest, ADamagedValueIsNotAbsent) {
    QDir().mkpath(path(u"velmora"_s));
    put(file_, "[General]\nbare=[1,2]\ncut=\"@ByteArray([{\\\"id\\\":1,");
    UserDefaults defaults(file_);
    EXPECT_EQ(defaults.data(u"cut"_s), "@ByteArray([{\"id\":1,"_ba);
    EXPECT_EQ(defaults.data(u"bare"_s), "[1,2]"_ba);
}

TEST_F(UserDefaultsTest, ARelativeConfigurationFolderIsIgnored) {
    const int status = statusOfChild([this] {
        qputenv("XDG_CONFIG_HOME", "relative");
        qputenv("HOME", QFile::encodeName(root_.path()));
        UserDefaults::standard().setBoolean(u"flag"_s, true);
        return QFileInfo::exists(path(u".config/velmora/velmora.conf"_s)) ? 0 : 1;
    });
    EXPECT_EQ(status, 0);
}

} // namespace
} // namespace velmora

#include "foundation/ChildProcess.h"

#include "foundation/FileDescriptor.h"
#include "support/TestDisplay.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using velmora::FileDescriptor;
using velmora::ChildProcess::Outcome;
using velmora::test::waitFor;

namespace {

/// One run whose outcome arrives later.
class Child {
public:
    explicit Child(const QString& command) : Child(u"/bin/sh"_s, {u"-c"_s, command}) {}
    Child(const QString& program, const QStringList& arguments) {
        velmora::ChildProcess::run(
            program, arguments, [outcome = outcome_](const Outcome& arrived) {
                EXPECT_FALSE(*outcome) << "completed twice";
                *outcome = arrived;
            });
    }

    bool isComplete() const { return outcome_->has_value(); }
    const Outcome& outcome() const {
        if (!waitFor([this] { return isComplete(); }))
            throw std::runtime_error("the run did not complete");
        return **outcome_;
    }
    QString output() const { return QString::fromUtf8(outcome().output.value_or("(not UTF-8)")); }

private:
    std::shared_ptr<std::optional<Outcome>> outcome_ = std::make_shared<std::optional<Outcome>>();
};

qsizetype countIn(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

/// A named pipe: the command waits in reading it until it is told to go on.
class Gate {
public:
    Gate() { ::mkfifo(path().toUtf8().constData(), 0600); }
    QString path() const { return folder_.filePath(u"gate"_s); }
    QString file(const QString& name) const { return folder_.filePath(name); }
    void open() const {
        QFile gate(path());
        ASSERT_TRUE(gate.open(QIODevice::WriteOnly));
        gate.write("go\n");
    }

private:
    QTemporaryDir folder_;
};

} // namespace

TEST(ChildProcess, GathersBothStreamsAsText) {
    const struct {
        QString command, output;
    } cases[] = {
        {u"echo hi"_s, u"hi\n"_s},
        {u"echo problem >&2"_s, u"problem\n"_s},
        {u"echo a; echo b >&2; echo c"_s, u"a\nb\nc\n"_s},
        {u"exit 3"_s, QString()},
        {u"printf 'ä€'; kill -9 $$"_s, u"ä€"_s},
        {u"printf '\\377\\376'"_s, u"(not UTF-8)"_s},
        {u"printf 'ok\\303'"_s, u"(not UTF-8)"_s},
    };
    for (const auto& [command, output] : cases) {
        const Child run(command);
        EXPECT_EQ(run.output(), output) << qPrintable(command);
        EXPECT_TRUE(run.outcome().startFailure.isEmpty());
    }
    const Child flood(u"head -c 70000000 /dev/zero"_s);
    EXPECT_EQ(flood.outcome().output->size(), velmora::ChildProcess::outputLimit);
    EXPECT_TRUE(flood.outcome().truncated);
}

TEST(ChildProcess, SaysWhyAProgramDoesNotStart) {
    const Child missing(u"/nonexistent/zsh"_s, {});
    EXPECT_FALSE(missing.isComplete()) << "completions come in a later turn";
    EXPECT_EQ(missing.outcome().startFailure, u"No such file or directory"_s);
    EXPECT_EQ(Child(u"/tmp"_s, {}).outcome().startFailure, u"Permission denied"_s);
}

TEST(ChildProcess, WaitsForTheProcessAndNotForItsOutput) {
    const Gate gate;
    const Child quiet(u"exec >&- 2>&-; read line <'%1'; exit"_s.arg(gate.path()));
    EXPECT_EQ(Child(u"echo other"_s).output(), u"other\n"_s) << "another run is not held up";
    EXPECT_FALSE(quiet.isComplete());
    gate.open();
    EXPECT_EQ(quiet.output(), QString());
}

TEST(ChildProcess, BackgroundGrandchildDelaysNothingAndIsDrained) {
    const Gate gate;
    // More than a pipe holds; with no reader it would hang, with a closed one be signalled.
    const Child run(
        u"(read line <'%1'; head -c 300000 /dev/zero; echo $? >'%2.new'; mv '%2.new' '%2') &"
        "echo hi"_s.arg(gate.path(), gate.file(u"status"_s)));
    EXPECT_EQ(run.output(), u"hi\n"_s);
    gate.open();
    QFile status(gate.file(u"status"_s));
    ASSERT_TRUE(waitFor([&] { return status.exists(); }));
    ASSERT_TRUE(status.open(QIODevice::ReadOnly));
    EXPECT_EQ(status.readAll(), "0\n");
}

TEST(ChildProcess, GrandchildThatNeverStopsWritingDelaysNothing) {
    const Child run(u"yes & echo $!"_s);
    // The number may stand anywhere among the lines that were in the pipe.
    QString number = run.output();
    number.remove(u'y').remove(u'\n');
    ASSERT_GT(number.toInt(), 1);
    EXPECT_EQ(::kill(number.toInt(), SIGKILL), 0) << "still running";
}

TEST(ChildProcess, InheritsOnlyWhatItShould) {
    const int leaky = ::open("/dev/null", O_RDONLY); // without O_CLOEXEC
    sigset_t blocked;
    sigset_t before;
    ::sigemptyset(&blocked);
    ::sigaddset(&blocked, SIGTERM);
    ::pthread_sigmask(SIG_BLOCK, &blocked, &before);
    const auto oldHandler = ::signal(SIGPIPE, SIG_IGN);
    qputenv("VELMORA_TEST_VALUE", "passed on");

    EXPECT_EQ(Child(u"ls -x /proc/$$/fd"_s).output().simplified(), u"0 1 2"_s);
    // The C library ignores the two real-time signals it keeps for itself in what it spawns.
    const QString ignored = Child(u"grep SigIgn /proc/self/status"_s).output().simplified();
    EXPECT_EQ(ignored.section(u' ', 1).toULongLong(nullptr, 16) & ~0x1'8000'0000ULL, 0U);
    EXPECT_EQ(
        Child(u"grep SigBlk /proc/self/status"_s).output().simplified(),
        u"SigBlk: 0000000000000000"_s);
    EXPECT_EQ(
        Child(u"set -- $(cat /proc/$$/stat); [ $6 = $$ ] && echo leader"_s).output(),
        u"leader\n"_s);
    EXPECT_EQ(
        Child(u"echo $VELMORA_TEST_VALUE; pwd"_s).output(),
        u"passed on\n%1\n"_s.arg(QDir::currentPath()));

    ::close(leaky);
    ::signal(SIGPIPE, oldHandler);
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

TEST(ChildProcess, ManyRunsLeaveNothingBehind) {
    const QString descriptors = u"/proc/self/fd"_s;
    const QString threads = u"/proc/self/task"_s;
    Child(u"true"_s).outcome(); // what is made once exists now
    qsizetype descriptorsBefore = 0;
    ASSERT_TRUE(waitFor([&] { // earlier tests' last descriptors go a moment after their outcomes
        const qsizetype now = countIn(descriptors);
        return std::exchange(descriptorsBefore, now) == now;
    }));
    const qsizetype threadsBefore = countIn(threads);
    std::vector<Child> children;
    for (int index = 0; index < 300; ++index)
        children.emplace_back(index % 10 ? u"echo x"_s : u"/nonexistent"_s);
    for (const Child& child : children)
        child.outcome();
    EXPECT_TRUE(waitFor([&] { return countIn(descriptors) <= descriptorsBefore; }))
        << countIn(descriptors) << " descriptors, " << descriptorsBefore << " before";
    EXPECT_EQ(countIn(threads), threadsBefore);
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD) << "a child or zombie is left";
}

TEST(ChildProcess, RunsWaitForRoomInTheirOrder) {
    rlimit before{};
    ::getrlimit(RLIMIT_NOFILE, &before);
    const auto setLimit = [&](int descriptors) {
        const rlimit changed{static_cast<rlim_t>(descriptors), before.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &changed);
    };
    const FileDescriptor lowestFree(::open("/dev/null", O_RDONLY | O_CLOEXEC));
    setLimit(lowestFree.get() + 14);
    std::vector<Child> children;
    for (int index = 0; index < 100; ++index)
        children.emplace_back(u"echo $$"_s);
    int last = 0;
    for (const Child& child : children) {
        ASSERT_EQ(child.outcome().startFailure, QString());
        const int process = child.output().toInt();
        EXPECT_GT(process, last) << "started out of turn";
        last = process;
    }
    setLimit(lowestFree.get()); // none is free, and there is nothing to wait for
    EXPECT_EQ(Child(u"true"_s).outcome().startFailure, u"Too many open files"_s);
    ::setrlimit(RLIMIT_NOFILE, &before);
}

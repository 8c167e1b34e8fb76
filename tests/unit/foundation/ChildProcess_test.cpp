#include "foundation/ChildProcess.h"

#include "foundation/FileDescriptor.h"
#include "foundation/Log.h"
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

using namespace Qt::StringLiterals;
using namespace velmora;
using ChildProcess::Outcome;
using test::waitFor;

namespace {

/// One run whose outcome arrives later.
class Child {
public:
    explicit Child(const QString& command) : Child(u"/bin/sh"_s, {u"-c"_s, command}) {}
    Child(const QString& program, const QStringList& arguments) {
        ChildProcess::run(program, arguments, [outcome = outcome_](const Outcome& arrived) {
            EXPECT_FALSE(*outcome) << "completed twice";
            *outcome = arrived;
        });
        EXPECT_FALSE(isComplete()) << "completions come in a later turn";
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

} // namespace

TEST(ChildProcess, GathersBothStreamsAsTextOrSaysWhyThereIsNone) {
    const struct {
        QString command, output;
    } cases[] = {
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
    EXPECT_EQ(flood.outcome().output->size(), ChildProcess::outputLimit);
    EXPECT_TRUE(flood.outcome().truncated);
    EXPECT_EQ(Child(u"/none"_s, {}).outcome().startFailure, u"No such file or directory"_s);
    EXPECT_EQ(Child(u"/tmp"_s, {}).outcome().startFailure, u"Permission denied"_s);
}

TEST(ChildProcess, WaitsForTheProcessAndNotForItsOutput) {
    const QTemporaryDir folder;
    const QString gate = folder.filePath(u"gate"_s);
    QFile status(folder.filePath(u"status"_s));
    ::mkfifo(gate.toUtf8().constData(), 0600);
    const auto open = [&] { QFile(gate).open(QIODevice::WriteOnly); };
    const Child quiet(u"exec >&- 2>&-; read line <'%1'"_s.arg(gate));
    EXPECT_EQ(Child(u"echo other"_s).output(), u"other\n"_s) << "another run is not held up";
    EXPECT_FALSE(quiet.isComplete());
    open();
    EXPECT_EQ(quiet.output(), QString());

    // More than a pipe holds: with no reader it would hang, with a closed one be signalled.
    const Child drained(
        u"(read line <'%1'; head -c 300000 /dev/zero; echo $? >'%2.new'; mv '%2.new' '%2') &"
        "echo hi"_s.arg(gate, status.fileName()));
    EXPECT_EQ(drained.output(), u"hi\n"_s);
    open();
    ASSERT_TRUE(waitFor([&] { return status.exists(); }) && status.open(QIODevice::ReadOnly));
    EXPECT_EQ(status.readAll(), "0\n");

    // The number may stand anywhere among the lines that were in the pipe.
    const int endless = Child(u"yes & echo $!"_s).output().remove(u'y').remove(u'\n').toInt();
    ASSERT_GT(endless, 1);
    EXPECT_EQ(::kill(endless, SIGKILL), 0) << "still running";
}

TEST(ChildProcess, InheritsOnlyWhatItShould) {
    const FileDescriptor leaky(::open("/dev/null", O_RDONLY)); // without O_CLOEXEC
    const auto oldHandler = ::signal(SIGPIPE, SIG_IGN);
    qputenv("VELMORA_TEST_VALUE", "passed on");
    // The C library ignores the two real-time signals it keeps for itself in what it spawns.
    const QString ignored = Child(u"grep SigIgn /proc/self/status"_s).output().simplified();
    EXPECT_EQ(ignored.section(u' ', 1).toULongLong(nullptr, 16) & ~0x1'8000'0000ULL, 0U);
    const std::pair<QString, QString> cases[] = {
        {u"ls -x /proc/$$/fd"_s, u"0 1 2"_s},
        {u"grep SigBlk /proc/self/status"_s, u"SigBlk: 0000000000000000"_s},
        {u"set -- $(cat /proc/$$/stat); [ $6 = $$ ] && echo leader"_s, u"leader"_s},
        {u"echo $VELMORA_TEST_VALUE; pwd"_s, u"passed on "_s + QDir::currentPath()},
    };
    for (const auto& [command, output] : cases)
        EXPECT_EQ(Child(command).output().simplified(), output);
    ::signal(SIGPIPE, oldHandler);
}

TEST(ChildProcess, RunsWaitForRoomInTheirOrderAndLeaveNothingBehind) {
    const QString descriptors = u"/proc/self/fd"_s;
    const QString threads = u"/proc/self/task"_s;
    Log::write(u"a line"_s);
    Child(u"true"_s).outcome(); // what is made once exists now
    qsizetype descriptorsBefore = 0;
    ASSERT_TRUE(waitFor([&] { // earlier tests' last descriptors go a moment after their outcomes
        const qsizetype now = countIn(descriptors);
        return std::exchange(descriptorsBefore, now) == now;
    }));
    const qsizetype threadsBefore = countIn(threads);
    rlimit before{};
    ::getrlimit(RLIMIT_NOFILE, &before);
    const auto setLimit = [&](int count) {
        const rlimit changed{static_cast<rlim_t>(count), before.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &changed);
    };
    const int lowestFree = FileDescriptor(::open("/dev/null", O_RDONLY | O_CLOEXEC)).get();
    setLimit(lowestFree + 14);
    std::vector<Child> children;
    for (int index = 0; index < 200; ++index)
        children.emplace_back(u"echo $$"_s);
    int last = 0;
    for (const Child& child : children) {
        ASSERT_EQ(child.outcome().startFailure, QString());
        const int process = child.output().toInt();
        const bool hasWrapped = process + 10000 < last; // the system counts from the start again
        EXPECT_TRUE(process > last || hasWrapped) << "started out of turn";
        last = process;
    }
    setLimit(lowestFree); // none is free, and there is nothing to wait for
    EXPECT_EQ(Child(u"true"_s).outcome().startFailure, u"Too many open files"_s);
    ::setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_TRUE(waitFor([&] { return countIn(descriptors) <= descriptorsBefore; }))
        << countIn(descriptors) << " descriptors, " << descriptorsBefore << " before";
    EXPECT_EQ(countIn(threads), threadsBefore);
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD) << "a child or zombie is left";
}

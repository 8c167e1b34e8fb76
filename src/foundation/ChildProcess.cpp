#include "foundation/ChildProcess.h"

#include "foundation/FileDescriptor.h"
#include "foundation/MainQueue.h"
#include "foundation/OutputText.h"

#include <QFile>
#include <QSocketNotifier>
#include <QThread>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/ioctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <vector>

// posix_spawn rather than QProcess: it does not copy this process's page tables, it closes what is
// ours in the child, and the pipe stays in our hands, so that a grandchild which writes to it later
// meets a reader, and the child is not killed when we end.

namespace velmora::ChildProcess {
namespace {

using Completion = std::function<void(const Outcome&)>;

QString description(int error) {
    return QString::fromStdString(std::generic_category().message(error));
}

void reap(pid_t process) {
    while (::waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
    }
}

/// A running process and the reading end of its output. Lives in the reader's thread, from the
/// start of the process until the last writer has closed the pipe.
class RunningChild : public QObject {
public:
    RunningChild(pid_t process, FileDescriptor ended, FileDescriptor output, Completion completion)
        : process_(process),
          ended_(std::move(ended)),
          output_(std::move(output)),
          completion_(std::move(completion)) {}

    /// Begins to watch and read. In the reader's thread.
    void watch() {
        endedNotifier_ = new QSocketNotifier(ended_.get(), QSocketNotifier::Read, this);
        outputNotifier_ = new QSocketNotifier(output_.get(), QSocketNotifier::Read, this);
        connect(endedNotifier_, &QSocketNotifier::activated, this, [this] { processEnded(); });
        connect(outputNotifier_, &QSocketNotifier::activated, this, [this] { read(bufferSize); });
    }

private:
    static constexpr qsizetype bufferSize = 64 * 1024;

    /// Reads once, at most `size` bytes, and gives their number.
    qsizetype read(qsizetype size) {
        std::array<char, bufferSize> buffer;
        const ssize_t count = ::read(output_.get(), buffer.data(), std::min(size, bufferSize));
        if (count > 0 && !isEnded_)
            text_.append({buffer.data(), count});
        if (count == 0 || (count < 0 && errno != EAGAIN && errno != EINTR)) {
            outputNotifier_->setEnabled(false);
            isClosed_ = true;
            releaseWhenDone();
        }
        return count;
    }

    void processEnded() {
        endedNotifier_->setEnabled(false);
        reap(process_);
        // Only what the pipe holds now: another writer may never stop.
        int held = 0;
        ::ioctl(output_.get(), FIONREAD, &held);
        while (held > 0) {
            const qsizetype count = read(held);
            if (count <= 0)
                break;
            held -= static_cast<int>(count);
        }
        isEnded_ = true;
        Outcome outcome;
        outcome.truncated = text_.truncated();
        outcome.output = text_.take();
        MainQueue::submit([completion = std::move(completion_), outcome = std::move(outcome)] {
            completion(outcome);
        });
        releaseWhenDone();
    }

    void releaseWhenDone() {
        if (isEnded_ && isClosed_)
            deleteLater();
    }

    pid_t process_;
    FileDescriptor ended_;
    FileDescriptor output_;
    Completion completion_;
    OutputText text_{outputLimit};
    bool isEnded_ = false;
    bool isClosed_ = false;
    QSocketNotifier* endedNotifier_ = nullptr;
    QSocketNotifier* outputNotifier_ = nullptr;
};

/// One thread reads for all children, so that a flood of output never holds the main thread. It is
/// started by the first run, sleeps while nothing arrives, and goes on until the program ends.
QThread& readerThread() {
    static QThread* const thread = [] {
        auto* made = new QThread;
        made->setObjectName(QStringLiteral("child output"));
        made->start();
        return made;
    }();
    return *thread;
}

/// Both output streams go to `output`; nothing else of ours is passed on. The process leads a
/// session of its own: neither Ctrl+C nor the end of the terminal that Velmora was started from
/// reaches it, and a read from that terminal, its inherited standard input, does not stop it as it
/// would a background process group. Gives 0 or an error number.
int spawn(
    const QString& program, const QStringList& arguments, const FileDescriptor& output,
    pid_t& process) {
    std::vector<QByteArray> texts{QFile::encodeName(program)};
    for (const QString& argument : arguments)
        texts.push_back(argument.toUtf8());
    std::vector<char*> pointers;
    for (QByteArray& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, output.get(), STDOUT_FILENO);
    ::posix_spawn_file_actions_adddup2(&actions, output.get(), STDERR_FILENO);
    ::posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);

    posix_spawnattr_t attributes;
    sigset_t signals;
    ::posix_spawnattr_init(&attributes);
    ::posix_spawnattr_setflags(
        &attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
    ::sigfillset(&signals);
    ::posix_spawnattr_setsigdefault(&attributes, &signals);
    ::sigemptyset(&signals);
    ::posix_spawnattr_setsigmask(&attributes, &signals);

    const int error =
        ::posix_spawn(&process, pointers.front(), &actions, &attributes, pointers.data(), environ);
    ::posix_spawnattr_destroy(&attributes);
    ::posix_spawn_file_actions_destroy(&actions);
    return error;
}

/// Starts the process and hands it to the reader. Gives 0 or an error number; then nothing runs.
int start(const QString& program, const QStringList& arguments, Completion& completion) {
    // A text with a NUL cannot be handed over whole, and cut short it is another command.
    if (program.contains(QChar(u'\0')) || arguments.join(QString()).contains(QChar(u'\0')))
        return EINVAL;
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        return errno;
    FileDescriptor readingEnd(ends[0]);
    FileDescriptor writingEnd(ends[1]);
    ::fcntl(readingEnd.get(), F_SETFL, O_NONBLOCK);

    pid_t process = 0;
    if (const int error = spawn(program, arguments, writingEnd, process))
        return error;
    writingEnd.reset(); // also makes room for the next descriptor
    FileDescriptor ended(static_cast<int>(::syscall(SYS_pidfd_open, process, 0)));
    if (!ended) {
        const int error = errno;
        ::kill(process, SIGKILL);
        reap(process);
        return error;
    }
    auto* child =
        new RunningChild(process, std::move(ended), std::move(readingEnd), std::move(completion));
    child->moveToThread(&readerThread());
    QMetaObject::invokeMethod(child, &RunningChild::watch, Qt::QueuedConnection);
    return 0;
}

} // namespace

void run(
    const QString& program, const QStringList& arguments,
    std::function<void(const Outcome&)> completion) {
    const int error = start(program, arguments, completion);
    if (error == 0)
        return;
    MainQueue::submit([completion = std::move(completion), error] {
        completion({.startFailure = description(error), .output = std::nullopt});
    });
}

} // namespace velmora::ChildProcess

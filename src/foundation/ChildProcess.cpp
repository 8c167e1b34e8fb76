#include "foundation/ChildProcess.h"

#include "foundation/FileDescriptor.h"
#include "foundation/Log.h"
#include "foundation/MainQueue.h"
#include "foundation/OutputText.h"

#include <QFile>
#include <array>
#include <cerrno>
#include <csignal>
#include <deque>
#include <fcntl.h>
#include <malloc.h>
#include <mutex>
#include <poll.h>
#include <spawn.h>
#include <sys/eventfd.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <vector>

// posix_spawn rather than QProcess: it does not copy this process's page tables, it closes what is
// ours in the child, and the pipe stays in our hands, so that a grandchild which writes to it later
// meets a reader, and the child is not killed when we end.

using namespace Qt::StringLiterals;

namespace velmora::ChildProcess {
namespace {

using Completion = std::function<void(const Outcome&)>;

/// Descriptors left to the rest of the program by all runs but the only one.
constexpr int descriptorsLeftFree = 8;

QString description(const std::error_code& error) {
    return QString::fromStdString(error.message());
}

void complete(Completion completion, Outcome outcome) {
    MainQueue::submit([completion = std::move(completion), outcome = std::move(outcome)] {
        completion(outcome);
    });
}

void fail(Completion completion, const std::error_code& error) {
    complete(std::move(completion), {.startFailure = description(error), .output = std::nullopt});
}

void reap(pid_t process) {
    while (::waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
    }
}

/// Whether `error` may be gone when something of ours has ended.
bool isLackOfRoom(int error) {
    return error == EMFILE || error == ENFILE || error == EAGAIN || error == ENOMEM;
}

/// Whether `descriptor`, the lowest that was free, is among the last ones.
bool isNearTheLimit(const FileDescriptor& descriptor) {
    rlimit limit{};
    ::getrlimit(RLIMIT_NOFILE, &limit);
    return static_cast<rlim_t>(descriptor.get()) + descriptorsLeftFree >= limit.rlim_cur;
}

struct Request {
    QString program;
    QStringList arguments;
    Completion completion;
};

/// A running process and the reading end of its output, kept until the process has ended and the
/// last writer has closed the pipe: each descriptor is given back when that has happened.
struct Child {
    pid_t process = 0;
    FileDescriptor ended;
    FileDescriptor output;
    Completion completion;
    OutputText text{};
};

/// Both output streams go to `output`; nothing else of ours is passed on. The process leads a
/// session of its own: neither Ctrl+C nor the end of the terminal that Velmora was started from
/// reaches it, and a read from that terminal, its inherited standard input, does not stop it as it
/// would a background process group. Gives 0 or an error number.
int spawn(const Request& request, const FileDescriptor& output, pid_t& process) {
    std::vector<QByteArray> texts{QFile::encodeName(request.program)};
    for (const QString& argument : request.arguments)
        texts.push_back(argument.toUtf8());
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
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

/// One thread starts and reads all children, so that neither holds the main thread. It is started
/// by the first run, sleeps while nothing arrives, and goes on until the program ends.
class Runner {
public:
    /// Throws std::system_error where there is no room for it; never destroyed.
    static Runner& shared() {
        static auto* const instance = new Runner;
        return *instance;
    }

    void add(Request request) {
        {
            const std::scoped_lock lock(mutex_);
            asked_.push_back(std::move(request));
        }
        ::eventfd_write(wake_.get(), 1);
    }

private:
    Runner() : wake_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
        if (!wake_)
            throw std::system_error(errno, std::generic_category());
        // Large outputs go back to the system when they are freed. By itself malloc raises this
        // bound with each of them, and keeps the next ones.
        ::mallopt(M_MMAP_THRESHOLD, 1024 * 1024);
        // Signals are the main thread's.
        sigset_t all, previous;
        ::sigfillset(&all);
        ::pthread_sigmask(SIG_SETMASK, &all, &previous);
        std::thread([this] { work(); }).detach();
        ::pthread_sigmask(SIG_SETMASK, &previous, nullptr);
    }

    [[noreturn]] void work() {
        for (;;) {
            startWaiting();
            std::vector<pollfd> watched{{wake_.get(), POLLIN, 0}};
            for (const Child& child : children_)
                for (const FileDescriptor* descriptor : {&child.ended, &child.output})
                    if (*descriptor)
                        watched.push_back({descriptor->get(), POLLIN, 0});
            if (::poll(watched.data(), watched.size(), -1) < 0)
                continue;
            eventfd_t ignored = 0;
            ::eventfd_read(wake_.get(), &ignored);
            const auto* next = watched.data() + 1;
            for (Child& child : children_) {
                const bool ended = child.ended && (next++)->revents;
                const bool readable = child.output && (next++)->revents;
                if (readable)
                    read(child, bufferSize);
                if (ended)
                    end(child);
            }
            std::erase_if(
                children_, [](const Child& child) { return !child.ended && !child.output; });
        }
    }

    void startWaiting() {
        {
            const std::scoped_lock lock(mutex_);
            std::ranges::move(asked_, std::back_inserter(waiting_));
            asked_.clear();
        }
        while (!waiting_.empty()) {
            const int error = start(waiting_.front());
            if (isLackOfRoom(error) && running_ > 0) {
                if (!std::exchange(lacksRoom_, true))
                    Log::write(u"Commands wait for others to end: %1"_s.arg(
                        description({error, std::generic_category()})));
                return;
            }
            if (error)
                fail(std::move(waiting_.front().completion), {error, std::generic_category()});
            waiting_.pop_front();
        }
        lacksRoom_ = false;
    }

    /// Starts the process. Gives 0 or an error number; then nothing was run.
    int start(Request& request) {
        // A text with a NUL cannot be handed over whole, and cut short it is another command.
        if (request.program.contains(QChar(u'\0')) ||
            request.arguments.join(QString()).contains(QChar(u'\0')))
            return EINVAL;
        std::array<int, 2> ends{};
        if (::pipe2(ends.data(), O_CLOEXEC) != 0)
            return errno;
        FileDescriptor readingEnd(ends[0]);
        FileDescriptor writingEnd(ends[1]);
        ::fcntl(readingEnd.get(), F_SETFL, O_NONBLOCK);
        if (running_ > 0 && isNearTheLimit(writingEnd))
            return EMFILE;

        pid_t process = 0;
        if (const int error = spawn(request, writingEnd, process))
            return error;
        writingEnd.reset(); // makes room for the next one
        FileDescriptor ended(static_cast<int>(::syscall(SYS_pidfd_open, process, 0)));
        if (!ended) {
            const int error = errno;
            ::kill(process, SIGKILL);
            reap(process);
            fail(std::move(request.completion), {error, std::generic_category()});
            return 0; // not to be tried again: it has begun
        }
        ++running_;
        children_.push_back(
            {process, std::move(ended), std::move(readingEnd), std::move(request.completion)});
        return 0;
    }

    /// Reads once, at most `size` bytes, and gives their number.
    qsizetype read(Child& child, qsizetype size) {
        std::array<char, bufferSize> buffer;
        const ssize_t count = ::read(child.output.get(), buffer.data(), std::min(size, bufferSize));
        if (count > 0 && child.ended) {
            const qsizetype before = child.text.size();
            child.text.append(
                {buffer.data(), count},
                std::min(outputLimit - before, allOutputLimit - bytesKept_));
            bytesKept_ += child.text.size() - before;
        }
        if (count == 0 || (count < 0 && errno != EAGAIN && errno != EINTR))
            child.output.reset();
        return count;
    }

    void end(Child& child) {
        reap(child.process);
        --running_;
        // Only what the pipe holds now: another writer may never stop.
        int held = 0;
        if (child.output)
            ::ioctl(child.output.get(), FIONREAD, &held);
        while (held > 0) {
            const qsizetype count = read(child, held);
            if (count <= 0)
                break;
            held -= static_cast<int>(count);
        }
        child.ended.reset();
        bytesKept_ -= child.text.size();
        Outcome outcome;
        outcome.truncated = child.text.truncated();
        outcome.output = child.text.take();
        complete(std::move(child.completion), std::move(outcome));
    }

    static constexpr qsizetype bufferSize = qsizetype{64} * 1024;

    FileDescriptor wake_;
    std::mutex mutex_;
    std::deque<Request> asked_; ///< guarded by the mutex; all below is the thread's own
    std::deque<Request> waiting_;
    std::vector<Child> children_;
    int running_ = 0; ///< children whose process has not ended
    qsizetype bytesKept_ = 0;
    bool lacksRoom_ = false;
};

} // namespace

void run(
    const QString& program, const QStringList& arguments,
    std::function<void(const Outcome&)> completion) {
    try {
        Runner::shared().add({program, arguments, completion});
    } catch (const std::system_error& error) {
        fail(std::move(completion), error.code());
    }
}

} // namespace velmora::ChildProcess

#include "foundation/Log.h"

#include <QDateTime>
#include <cerrno>
#include <condition_variable>
#include <csignal>
#include <cstdlib>
#include <deque>
#include <mutex>
#include <thread>
#include <unistd.h>

using namespace std::chrono_literals;

namespace velmora::Log {
namespace {

/// Bytes that may wait for a reader; lines beyond are dropped. Several of the longest.
constexpr qsizetype queueLimit = 256 * 1024 * 1024;

/// Bytes up to which a line goes out in one piece, so that no other writer comes between.
constexpr qsizetype pieceSize = 64 * 1024;

constexpr auto longestFlush = 1s;

struct Line {
    int descriptor;
    QByteArray text;
    QByteArray more;
    QDateTime time;

    qsizetype size() const { return text.size() + more.size(); }
};

/// Writes everything, whatever its size. A reader that went away is not our failure: give up.
void writeAll(int descriptor, const QByteArray& bytes) {
    const char* next = bytes.constData();
    qsizetype left = bytes.size();
    while (left > 0) {
        const ssize_t written = ::write(descriptor, next, static_cast<size_t>(left));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return;
        next += written;
        left -= written;
    }
}

void writeNow(const Line& line) {
    QByteArray head;
    if (line.descriptor == STDERR_FILENO)
        head = line.time.toString(Qt::ISODateWithMs).toUtf8() + " velmora[" +
               QByteArray::number(::getpid()) + "] ";
    head += line.text;
    if (line.size() <= pieceSize) {
        writeAll(line.descriptor, head + line.more + '\n');
        return;
    }
    for (const QByteArray& piece : {head, line.more, QByteArray("\n")})
        writeAll(line.descriptor, piece);
}

/// The lines that wait, and the thread that writes them.
class Writer {
public:
    /// Made by the first line. Never destroyed: other threads log until the very end.
    static Writer& shared() {
        static auto* const instance = new Writer;
        return *instance;
    }

    void add(Line line) {
        const std::scoped_lock lock(mutex_);
        if (waiting_ + line.size() > queueLimit)
            return;
        waiting_ += line.size();
        lines_.push_back(std::move(line));
        changed_.notify_all();
    }

    void flush() {
        std::unique_lock lock(mutex_);
        changed_.wait_for(lock, longestFlush, [this] { return lines_.empty(); });
    }

private:
    Writer() {
        // Signals are the main thread's.
        sigset_t all, previous;
        ::sigfillset(&all);
        ::pthread_sigmask(SIG_SETMASK, &all, &previous);
        std::thread([this] { run(); }).detach();
        ::pthread_sigmask(SIG_SETMASK, &previous, nullptr);
        std::atexit(Log::flush);
    }

    [[noreturn]] void run() {
        std::unique_lock lock(mutex_);
        for (;;) {
            changed_.wait(lock, [this] { return !lines_.empty(); });
            const Line& line = lines_.front();
            lock.unlock();
            writeNow(line);
            lock.lock();
            waiting_ -= line.size();
            lines_.pop_front(); // only now: an empty queue means that all is written
            changed_.notify_all();
        }
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Line> lines_;
    qsizetype waiting_ = 0;
};

std::mutex sinkMutex;
Sink& currentSink() {
    static Sink sink;
    return sink;
}

} // namespace

void write(const QString& line, const QByteArray& more) {
    {
        const std::scoped_lock lock(sinkMutex);
        if (const Sink& sink = currentSink()) {
            sink(line + QString::fromUtf8(more));
            return;
        }
    }
    Writer::shared().add({STDERR_FILENO, line.toUtf8(), more, QDateTime::currentDateTime()});
}

void setSink(Sink sink) {
    const std::scoped_lock lock(sinkMutex);
    currentSink() = std::move(sink);
}

void writeDiagnostic(const QString& line) {
    Writer::shared().add({STDOUT_FILENO, line.toUtf8(), {}, {}});
}

void flush() {
    Writer::shared().flush();
}

} // namespace velmora::Log

#include "foundation/Log.h"

#include "foundation/Journal.h"

#include <QDateTime>
#include <cerrno>
#include <mutex>
#include <optional>
#include <unistd.h>

namespace velmora::Log {
namespace {

std::mutex mutex;
Sink& currentSink() {
    static Sink sink;
    return sink;
}

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

/// The journal as far as it is wanted, found out by the first line.
const std::optional<Journal>& journal() {
    static const std::optional<Journal> instance =
        wantsJournal(STDERR_FILENO, qgetenv("JOURNAL_STREAM"))
            ? std::optional<Journal>(std::in_place)
            : std::nullopt;
    return instance;
}

} // namespace

void write(const QString& line) {
    const std::scoped_lock lock(mutex);
    if (const Sink& sink = currentSink()) {
        sink(line);
        return;
    }
    const QByteArray text = line.toUtf8();
    QByteArray stamped = QDateTime::currentDateTime().toString(Qt::ISODateWithMs).toUtf8();
    stamped += " velmora[" + QByteArray::number(::getpid()) + "] " + text + '\n';
    writeAll(STDERR_FILENO, stamped);
    if (journal())
        journal()->write(text);
}

void setSink(Sink sink) {
    const std::scoped_lock lock(mutex);
    currentSink() = std::move(sink);
}

void writeDiagnostic(const QString& line) {
    writeAll(STDOUT_FILENO, line.toUtf8() + '\n');
}

} // namespace velmora::Log

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

/// A child process whose output is gathered beside the main thread.
namespace velmora::ChildProcess {

/// How a run came out.
struct Outcome {
    /// Set when the process could not be started: the system's description of why.
    QString startFailure;
    /// Standard output and standard error in one channel, in the order written, until the process
    /// ended: UTF-8, absent when the bytes are not, whether kept or not.
    std::optional<QByteArray> output;
    /// More arrived than is kept; `output` ends at the last character boundary in what is.
    bool truncated = false;
};

/// Bytes of output kept of one run, and of all that go on at a time.
inline constexpr qsizetype outputLimit = qsizetype{64} * 1024 * 1024;
inline constexpr qsizetype allOutputLimit = 4 * outputLimit;

/// Starts `program` with `arguments`; environment, working directory and standard input are
/// inherited. `completion` is called once, on the main thread in a later turn of its event loop,
/// when the process has ended (a background grandchild that keeps the channel open delays nothing)
/// or could not be started. Runs start in the order asked for; one for which the system has no room
/// (descriptors, processes, memory) waits until another ends, as long as any goes on. There is no
/// time limit. The process outlives this one. Main thread only.
void run(
    const QString& program, const QStringList& arguments,
    std::function<void(const Outcome&)> completion);

} // namespace velmora::ChildProcess

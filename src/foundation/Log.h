#pragma once

#include <QByteArray>
#include <QString>
#include <functional>

/// The program's log: one time-stamped line a call on standard error, which a desktop gathers in
/// its session's log or journal. Usable from any thread. A thread of its own writes the lines in
/// their order, so that a reader who is slow, or stuck, holds nobody up.
namespace velmora::Log {

/// Receives each line without its time stamp, instead of standard error. On the caller's thread.
using Sink = std::function<void(const QString& line)>;

/// Writes `line`, continued by `more`, UTF-8 of any size that is not copied. Line breaks in them
/// are kept.
void write(const QString& line, const QByteArray& more = {});

/// Sends all lines to `sink` from now on; an empty function restores standard error. For tests.
void setSink(Sink sink);

/// Writes a diagnostic line, as it stands, to standard output.
void writeDiagnostic(const QString& line);

/// Waits until all lines are written, but not for long. Happens by itself when the process exits.
void flush();

} // namespace velmora::Log

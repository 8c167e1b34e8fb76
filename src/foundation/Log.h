#pragma once

#include <QString>
#include <functional>

/// The program's log: one time-stamped line a call. Usable from any thread. A thread of its own
/// writes the lines in their order, so that a reader who is slow, or stuck, holds nobody up.
namespace velmora::Log {

/// Receives each line without its time stamp, instead of standard error. On the caller's thread.
using Sink = std::function<void(const QString& line)>;

/// Writes `line` to standard error with a time stamp, and, unless the program was started from a
/// terminal, to the system's journal. Line breaks inside it are kept.
void write(const QString& line);

/// Sends all lines to `sink` from now on; an empty function restores standard error. For tests.
void setSink(Sink sink);

/// Writes a diagnostic line, as it stands, to standard output.
void writeDiagnostic(const QString& line);

/// Waits until all lines are written, but not for long. Happens by itself when the process exits.
void flush();

} // namespace velmora::Log

#pragma once

#include <QString>

namespace velmora {

/// Writes why the process ends to the log, and ends it with a failing status; no destructor runs.
/// Works without memory for a thread, too.
[[noreturn]] void endWithReason(const QString& reason);

/// From here on what a library cannot go on without (a missing plugin, no memory) ends the process
/// by endWithReason() instead of a signal. Call once, before other threads.
void installLastWords();

} // namespace velmora

#pragma once

namespace velmora {

/// Writes why the process ends to the log, and ends it with a failing status; no destructor runs.
/// `reason` is UTF-8. Works without any memory, too.
[[noreturn]] void endWithReason(const char* reason);

/// From here on what a library cannot go on without (a missing plugin, no memory) ends the process
/// by endWithReason() instead of a signal. Call once, before other threads.
void installLastWords();

} // namespace velmora

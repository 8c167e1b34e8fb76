#pragma once

#include "foundation/FileDescriptor.h"

#include <QByteArray>

namespace velmora {

/// The system's journal, spoken to in its native protocol: one datagram an entry, and for an entry
/// that is too big for one, a sealed memory file. An entry that the journal does not take at once
/// is dropped, as is everything where there is no journal. Not thread-safe.
class Journal {
public:
    /// Where the system's journal listens.
    static constexpr char systemSocket[] = "/run/systemd/journal/socket";

    explicit Journal(const char* socketPath = systemSocket);

    /// Writes `message`, UTF-8, of any length and with any line breaks.
    void write(const QByteArray& message) const;

private:
    FileDescriptor socket_;
};

/// Whether log lines belong into the journal: the program was started from the desktop, not from a
/// terminal, and standard error does not lead there already. `journalStream` is the environment's
/// JOURNAL_STREAM, "<device>:<inode>" of what the journal reads.
bool wantsJournal(int standardError, const QByteArray& journalStream);

} // namespace velmora

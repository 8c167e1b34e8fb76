#pragma once

#include <QByteArray>
#include <optional>

namespace velmora {

/// The bytes of the regular file at `path`, links followed; nothing when there is none to be read
/// or it is larger than `limit` bytes. Never waits for a pipe or a device; on a mount whose server
/// is gone even asking what lies there waits, so paths of unknown origin are read off the main
/// thread. Thread-safe.
std::optional<QByteArray> wholeFile(const QByteArray& path, qint64 limit);

} // namespace velmora

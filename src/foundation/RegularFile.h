#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <sys/stat.h>

namespace velmora {

/// Why a file could not be read or written.
struct FileError {
    explicit FileError(int errorNumber);
    FileError(int errorNumber, const QString& text) : number(errorNumber), reason(text) {}

    int number;     ///< as in errno
    QString reason; ///< for the user, in their language
};

/// One state of a file: replaced or written to, it has another.
struct FileState {
    explicit FileState(const struct stat& status);
    bool operator==(const FileState&) const = default;

    dev_t device;
    ino_t inode;
    off_t size;
    qint64 seconds;     ///< of the last writing
    qint64 nanoseconds; ///< beside them
};

struct FileContents {
    QByteArray bytes;
    FileState state;
};

/// Regular files only, links followed: a pipe or a device would hold whoever reads it. All but
/// bytes() throw a FileError. Thread-safe.
namespace RegularFile {

/// Nothing when there is no such file.
std::optional<FileState> state(const QString& path);

/// Nothing when there is no such file. Fails with EFBIG beyond `limit` bytes.
std::optional<FileContents> read(const QString& path, qint64 limit);

/// The bytes alone of a file of unknown origin; nothing when there is none to be read or it is
/// larger than `limit`. On a mount whose server is gone even asking what lies there waits, so such
/// files are read off the main thread.
std::optional<QByteArray> bytes(const QString& path, qint64 limit);

/// Writes `bytes` into a new file beside the old one, and that to the disk, before it takes the old
/// one's place: at any moment there is one or the other, whole. A link stays one; mode and owner
/// stay what they were. A file that was not there is for its owner only.
FileState replace(const QString& path, const QByteArray& bytes);

/// Does all of replace() but for the last step: the old file stays.
void rehearse(const QString& path, const QByteArray& bytes);

/// Removes what a process killed in replace() has left beside `path`.
void removeAbandoned(const QString& path);

} // namespace RegularFile
} // namespace velmora

#include "foundation/RegularFile.h"

#include "foundation/FileDescriptor.h"
#include "foundation/LocalizedString.h"

#include <QDir>
#include <QFile>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr auto newFileMark = ".new-"_L1;

/// Calls again what a signal interrupted; throws on any other failure.
template<typename Call>
auto checked(Call call) {
    for (;;) {
        const auto result = call();
        if (result >= 0)
            return result;
        if (errno != EINTR)
            throw FileError(errno);
    }
}

void requireRegular(const struct stat& status) {
    if (S_ISDIR(status.st_mode))
        throw FileError(EISDIR);
    if (!S_ISREG(status.st_mode))
        throw FileError(EINVAL, localizedString("file_not_regular"));
}

/// The status of what is at `path`; nothing when nothing is.
std::optional<struct stat> statusOf(const QByteArray& path) {
    struct stat status {};
    if (::stat(path.constData(), &status) == 0) {
        requireRegular(status);
        return status;
    }
    if (errno != ENOENT)
        throw FileError(errno);
    return {};
}

/// The same; fails where the user has taken away the right to write.
std::optional<struct stat> writableStatusOf(const QByteArray& path) {
    const auto status = statusOf(path);
    if (status)
        checked([&] { return ::access(path.constData(), W_OK); });
    return status;
}

QByteArray folderOf(const QByteArray& path) {
    return path.first(path.lastIndexOf('/') + 1);
}

/// The file behind the links at `path`, which need not be there yet.
QByteArray behindLinks(QByteArray path) {
    for (int links = 0; links < 40; ++links) {
        char target[PATH_MAX];
        const ssize_t length = ::readlink(path.constData(), target, sizeof target);
        if (length < 0)
            return path;
        const QByteArray next(target, length);
        path = next.startsWith('/') ? next : folderOf(path) + next;
    }
    throw FileError(ELOOP);
}

/// A file that is to take the place of the one at a path. Goes away unless it does.
class NewFile {
public:
    explicit NewFile(const QString& path)
        : target_(behindLinks(QFile::encodeName(path))),
          old_(writableStatusOf(target_)),
          name_(target_ + newFileMark.latin1() + "XXXXXX"),
          file_(checked([this] { return ::mkostemp(name_.data(), O_CLOEXEC); })) {}
    ~NewFile() {
        if (!name_.isEmpty())
            ::unlink(name_.constData());
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    void write(const QByteArray& bytes) {
        takeOwnerAndMode();
        for (QByteArrayView rest = bytes; !rest.isEmpty();)
            rest = rest.sliced(checked([&] {
                return ::write(file_.get(), rest.data(), static_cast<size_t>(rest.size()));
            }));
        checked([&] { return ::fsync(file_.get()); });
    }

    FileState takePlace() {
        const FileState state(status());
        checked([&] { return ::rename(name_.constData(), target_.constData()); });
        name_.clear();
        const FileDescriptor folder(checked([&] {
            return ::open(folderOf(target_).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        }));
        // Where folders cannot be written to the disk, their file system does so by itself.
        if (::fsync(folder.get()) != 0 && errno != EINVAL)
            throw FileError(errno);
        return state;
    }

private:
    void takeOwnerAndMode() const {
        const struct stat now = status();
        const struct stat wanted = old_.value_or(now);
        if (now.st_uid != wanted.st_uid || now.st_gid != wanted.st_gid)
            checked([&] { return ::fchown(file_.get(), wanted.st_uid, wanted.st_gid); });
        checked([&] { return ::fchmod(file_.get(), wanted.st_mode & 07777); });
    }

    struct stat status() const {
        struct stat status {};
        checked([&] { return ::fstat(file_.get(), &status); });
        return status;
    }

    const QByteArray target_;
    const std::optional<struct stat> old_;
    QByteArray name_;
    const FileDescriptor file_;
};

} // namespace

FileError::FileError(int errorNumber)
    : number(errorNumber), reason(QString::fromLocal8Bit(std::strerror(errorNumber))) {}

FileState::FileState(const struct stat& status)
    : device(status.st_dev),
      inode(status.st_ino),
      size(status.st_size),
      seconds(status.st_mtim.tv_sec),
      nanoseconds(status.st_mtim.tv_nsec) {}

std::optional<FileState> RegularFile::state(const QString& path) {
    const auto status = statusOf(QFile::encodeName(path));
    return status ? std::optional(FileState(*status)) : std::nullopt;
}

std::optional<FileContents> RegularFile::read(const QString& path, qint64 limit) {
    const QByteArray name = QFile::encodeName(path);
    if (!statusOf(name))
        return {};
    const FileDescriptor file(
        checked([&] { return ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); }));
    struct stat status {};
    checked([&] { return ::fstat(file.get(), &status); });
    requireRegular(status);
    if (status.st_size > limit)
        throw FileError(EFBIG);
    QByteArray bytes(status.st_size, Qt::Uninitialized);
    qsizetype count = 0;
    while (count < bytes.size()) {
        const auto more = checked([&] {
            return ::read(
                file.get(), bytes.data() + count, static_cast<size_t>(bytes.size() - count));
        });
        if (more == 0)
            break;
        count += more;
    }
    bytes.truncate(count);
    return FileContents{bytes, FileState(status)};
}

std::optional<QByteArray> RegularFile::bytes(const QString& path, qint64 limit) {
    try {
        if (const auto contents = read(path, limit))
            return contents->bytes;
    } catch (const FileError&) { // nobody asks which
    }
    return {};
}

FileState RegularFile::replace(const QString& path, const QByteArray& bytes) {
    NewFile file(path);
    file.write(bytes);
    return file.takePlace();
}

void RegularFile::rehearse(const QString& path, const QByteArray& bytes) {
    NewFile(path).write(bytes);
}

void RegularFile::removeAbandoned(const QString& path) {
    const QFileInfo target(QFile::decodeName(behindLinks(QFile::encodeName(path))));
    QDir folder = target.dir();
    for (const QString& name : folder.entryList(QDir::Files | QDir::Hidden)) {
        if (name.startsWith(target.fileName() + newFileMark))
            folder.remove(name);
    }
}

} // namespace velmora

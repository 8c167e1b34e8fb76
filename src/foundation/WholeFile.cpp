#include "foundation/WholeFile.h"

#include <QFile>
#include <fcntl.h>
#include <sys/stat.h>

namespace velmora {

std::optional<QByteArray> wholeFile(const QByteArray& path, qint64 limit) {
    const auto isFit = [limit](const struct stat& status) {
        return S_ISREG(status.st_mode) && status.st_size <= limit;
    };
    // Before it is opened, for opening alone may do something to a device; and after, for another
    // may have taken its place.
    struct stat status {};
    if (::stat(path.constData(), &status) != 0 || !isFit(status))
        return {};
    const int descriptor = ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    QFile file;
    if (descriptor < 0 ||
        !file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered, QFile::AutoCloseHandle))
        return {};
    if (::fstat(descriptor, &status) != 0 || !isFit(status))
        return {};
    return file.read(status.st_size);
}

} // namespace velmora

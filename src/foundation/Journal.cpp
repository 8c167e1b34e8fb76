#include "foundation/Journal.h"

#include <QtEndian>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

namespace velmora {
namespace {

/// The informational level of syslog, and the message in the form that allows line breaks: its
/// length in 64 bits, little-endian, before it.
QByteArray entry(const QByteArray& message) {
    const auto length = qToLittleEndian(static_cast<quint64>(message.size()));
    QByteArray fields = "PRIORITY=6\nSYSLOG_IDENTIFIER=velmora\nMESSAGE\n";
    fields.append(reinterpret_cast<const char*>(&length), sizeof length);
    return fields + message + '\n';
}

/// A file in memory that holds `bytes` and cannot change any more, as the journal demands.
FileDescriptor sealedFile(const QByteArray& bytes) {
    FileDescriptor file(::memfd_create("velmora-log", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    qsizetype written = 0;
    while (file && written < bytes.size()) {
        const ssize_t count = ::write(
            file.get(), bytes.constData() + written, static_cast<size_t>(bytes.size() - written));
        if (count <= 0)
            return {};
        written += count;
    }
    if (::fcntl(file.get(), F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE | F_SEAL_SEAL))
        return {};
    return file;
}

void sendDescriptor(int socket, int descriptor) {
    alignas(cmsghdr) char control[CMSG_SPACE(sizeof descriptor)] = {};
    msghdr message = {};
    message.msg_control = control;
    message.msg_controllen = sizeof control;
    cmsghdr* const header = CMSG_FIRSTHDR(&message);
    header->cmsg_level = SOL_SOCKET;
    header->cmsg_type = SCM_RIGHTS;
    header->cmsg_len = CMSG_LEN(sizeof descriptor);
    std::memcpy(CMSG_DATA(header), &descriptor, sizeof descriptor);
    ::sendmsg(socket, &message, MSG_DONTWAIT | MSG_NOSIGNAL);
}

} // namespace

Journal::Journal(const char* socketPath)
    : socket_(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {
    sockaddr_un address = {.sun_family = AF_UNIX, .sun_path = {}};
    if (std::strlen(socketPath) >= sizeof address.sun_path)
        socket_.reset();
    else
        std::strcpy(address.sun_path, socketPath);
    if (socket_ &&
        ::connect(socket_.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
        socket_.reset();
}

void Journal::write(const QByteArray& message) const {
    if (!socket_)
        return;
    const QByteArray bytes = entry(message);
    const ssize_t sent = ::send(
        socket_.get(), bytes.constData(), static_cast<size_t>(bytes.size()),
        MSG_DONTWAIT | MSG_NOSIGNAL);
    if (sent >= 0 || (errno != EMSGSIZE && errno != ENOBUFS))
        return;
    if (const FileDescriptor file = sealedFile(bytes))
        sendDescriptor(socket_.get(), file.get());
}

bool wantsJournal(int standardError, const QByteArray& journalStream) {
    if (::isatty(standardError))
        return false;
    if (const FileDescriptor terminal(::open("/dev/tty", O_RDONLY | O_NOCTTY | O_CLOEXEC));
        terminal)
        return false;
    struct stat status = {};
    return ::fstat(standardError, &status) != 0 ||
           journalStream != QByteArray::number(static_cast<quint64>(status.st_dev)) + ':' +
                                QByteArray::number(static_cast<quint64>(status.st_ino));
}

} // namespace velmora

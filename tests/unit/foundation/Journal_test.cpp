#include "foundation/Journal.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>
#include <cstring>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// A journal that takes entries as the system's does.
class ListeningJournal {
public:
    ListeningJournal()
        : path(QFile::encodeName(folder_.path()) + "/socket"),
          socket_(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {
        sockaddr_un address = {.sun_family = AF_UNIX, .sun_path = {}};
        std::strcpy(address.sun_path, path.constData());
        if (::bind(socket_.get(), reinterpret_cast<sockaddr*>(&address), sizeof address) != 0)
            qFatal("cannot listen on %s", path.constData());
    }

    /// The next entry's fields, as they came or from the file that came instead.
    QByteArray next() {
        QByteArray bytes(1 << 20, Qt::Uninitialized);
        iovec part{bytes.data(), static_cast<size_t>(bytes.size())};
        alignas(cmsghdr) char control[CMSG_SPACE(sizeof(int))] = {};
        msghdr message = {};
        message.msg_iov = &part;
        message.msg_iovlen = 1;
        message.msg_control = control;
        message.msg_controllen = sizeof control;
        const ssize_t count = ::recvmsg(socket_.get(), &message, MSG_CMSG_CLOEXEC | MSG_DONTWAIT);
        if (count < 0)
            return {};
        const cmsghdr* header = CMSG_FIRSTHDR(&message);
        if (!header)
            return bytes.left(count);
        EXPECT_EQ(count, 0) << "a file comes alone";
        int descriptor = -1;
        std::memcpy(&descriptor, CMSG_DATA(header), sizeof descriptor);
        QFile file;
        EXPECT_TRUE(file.open(descriptor, QIODevice::ReadWrite, QFile::AutoCloseHandle));
        EXPECT_LT(::write(descriptor, "x", 1), 0) << "the file is sealed";
        file.seek(0);
        return file.readAll();
    }

private:
    QTemporaryDir folder_;

public:
    const QByteArray path;

private:
    FileDescriptor socket_;
};

TEST(Journal, TakesMessagesOfAnyShape) {
    const QByteArray messages[] = {
        "one line",
        "",
        "two\nlines\nPRIORITY=0",
        u"📝 スクリーンショット"_s.toUtf8(),
        QByteArray(100'000, 'a'),
        QByteArray(20'000'000, 'b'), // beyond any datagram
    };
    ListeningJournal listening;
    const Journal journal(listening.path.constData());
    for (const QByteArray& message : messages) {
        SCOPED_TRACE(message.left(30).toStdString());
        journal.write(message);
        const QByteArray got = listening.next();
        const QByteArray head = "PRIORITY=6\nSYSLOG_IDENTIFIER=velmora\nMESSAGE\n";
        ASSERT_TRUE(got.startsWith(head));
        ASSERT_EQ(got.size(), head.size() + 8 + message.size() + 1);
        EXPECT_EQ(
            qFromLittleEndian<quint64>(got.constData() + head.size()),
            static_cast<quint64>(message.size()));
        EXPECT_TRUE(got.mid(head.size() + 8) == message + '\n');
    }
}

TEST(Journal, NeverHoldsUpTheProgram) {
    const Journal absent("/nowhere/socket");
    absent.write("x");
    ListeningJournal asleep;
    const Journal journal(asleep.path.constData());
    for (int count = 0; count < 10'000; ++count)
        journal.write("nobody reads this");
    EXPECT_FALSE(asleep.next().isEmpty());
}

TEST(Journal, IsNotWantedWhereStandardErrorLeadsThere) {
    // The tests may run in a terminal, which alone decides.
    const bool inTerminal = bool(FileDescriptor(::open("/dev/tty", O_RDONLY | O_CLOEXEC)));
    const QTemporaryDir folder;
    QFile file(folder.path() + u"/log"_s);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    struct stat status = {};
    ::fstat(file.handle(), &status);
    const QByteArray stream = QByteArray::number(quint64(status.st_dev)) + ':' +
                              QByteArray::number(quint64(status.st_ino));
    EXPECT_EQ(wantsJournal(file.handle(), {}), !inTerminal);
    EXPECT_EQ(wantsJournal(file.handle(), stream + '0'), !inTerminal);
    EXPECT_FALSE(wantsJournal(file.handle(), stream));
}

} // namespace
} // namespace velmora

#include "app/RemoteControl.h"

#include "foundation/Environment.h"
#include "foundation/Log.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr int longestCommand = 8192; ///< bytes; the longest path takes half of them
constexpr int mostCallers = 32;
constexpr char endOfCommand = 0;
constexpr char endOfStatus = '\n'; ///< in an answer; the text behind it goes on to the end

/// How long to wait before looking once more whether an instance that is ending has ended.
constexpr int pauseBetweenLooks = 5; // milliseconds

/// The settings' folder, made for the user's eyes only where it is missing.
QString settingsFolder() {
    QString folder = Environment::configurationFolder() + u"/velmora"_s;
    QDir().mkpath(QFileInfo(folder).path());
    ::mkdir(QFile::encodeName(folder).constData(), 0700);
    return folder;
}

FileDescriptor openFolder(const QString& path) {
    return FileDescriptor(
        ::open(QFile::encodeName(path).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
}

/// The address of a socket in an open folder. Through the descriptor: a path of the user's may be
/// longer than an address takes.
sockaddr_un addressOf(const FileDescriptor& folder, const QByteArray& name) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray path = "/proc/self/fd/" + QByteArray::number(folder.get()) + '/' + name;
    qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
    return address;
}

FileDescriptor makeSocket(int flags) {
    return FileDescriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | flags, 0));
}

} // namespace

RemoteControl::RemoteControl(const QString& session) {
    QString plain = session;
    plain.replace(u'/', u'_');
    name_ = "velmora-" + QFile::encodeName(plain).left(60) + ".socket";
}

RemoteControl::~RemoteControl() {
    makeRoom();
}

RemoteControl::Claim
RemoteControl::claim(const QByteArray& command, std::chrono::milliseconds patience) {
    if (!openLock()) {
        Log::write(u"⚠️ Another Velmora would not be noticed: no folder to lock in."_s);
        return Claim::first;
    }
    const QDeadlineTimer deadline(patience);
    for (;;) {
        if (takeLock()) {
            openSocket();
            return Claim::first;
        }
        if (ask(command, deadline))
            return Claim::handedOver;
        if (deadline.hasExpired())
            return Claim::noAnswer;
        ::poll(nullptr, 0, pauseBetweenLooks);
    }
}

bool RemoteControl::openLock() {
    const QByteArray lockName = name_.chopped(QByteArrayView("socket").size()) + "lock";
    for (const bool isFallback : {false, true}) {
        const QString path =
            isFallback ? settingsFolder() : qEnvironmentVariable("XDG_RUNTIME_DIR");
        if (!QDir::isAbsolutePath(path))
            continue;
        folder_ = openFolder(path);
        lock_ = FileDescriptor(
            ::openat(folder_.get(), lockName.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
        if (lock_)
            return true;
    }
    return false;
}

bool RemoteControl::takeLock() {
    return ::flock(lock_.get(), LOCK_EX | LOCK_NB) == 0;
}

void RemoteControl::openSocket() {
    // One that a killed instance left: the lock says that nobody listens there.
    ::unlinkat(folder_.get(), name_.constData(), 0);
    socket_ = makeSocket(SOCK_NONBLOCK);
    const sockaddr_un address = addressOf(folder_, name_);
    if (::bind(socket_.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::listen(socket_.get(), mostCallers) != 0)
        socket_.reset();
}

bool RemoteControl::ask(const QByteArray& command, const QDeadlineTimer& deadline) {
    const FileDescriptor socket = makeSocket(0);
    const sockaddr_un address = addressOf(folder_, name_);
    const QByteArray sent = command + endOfCommand;
    if (::connect(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::send(socket.get(), sent.constData(), static_cast<size_t>(sent.size()), MSG_NOSIGNAL) !=
            sent.size())
        return false;
    QByteArray received;
    for (;;) {
        pollfd answer{socket.get(), POLLIN, 0};
        while (::poll(&answer, 1, static_cast<int>(deadline.remainingTime())) < 0 &&
               errno == EINTR) {
        }
        char buffer[1024];
        const ssize_t count =
            answer.revents ? ::recv(socket.get(), buffer, sizeof buffer, MSG_DONTWAIT) : -1;
        if (count <= 0)
            break;
        received.append(buffer, count);
    }
    const qsizetype end = received.indexOf(endOfStatus);
    if (end < 0)
        return false;
    answer_ = {received.left(end).toInt(), QString::fromUtf8(received.sliced(end + 1))};
    return true;
}

void RemoteControl::listen(std::function<RemoteAnswer(const QByteArray&)> handler) {
    handler_ = std::move(handler);
    if (!socket_)
        return;
    notifier_ = std::make_unique<QSocketNotifier>(socket_.get(), QSocketNotifier::Read);
    QObject::connect(
        notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { accept(); });
}

void RemoteControl::makeRoom() {
    callers_.clear();
    notifier_.reset();
    if (!socket_)
        return;
    ::unlinkat(folder_.get(), name_.constData(), 0);
    socket_.reset();
}

void RemoteControl::accept() {
    FileDescriptor socket(::accept4(socket_.get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (!socket)
        return;
    if (callers_.size() == mostCallers)
        callers_.pop_front();
    const auto caller = callers_.emplace(callers_.end());
    caller->notifier = std::make_unique<QSocketNotifier>(socket.get(), QSocketNotifier::Read);
    caller->socket = std::move(socket);
    QObject::connect(
        caller->notifier.get(), &QSocketNotifier::activated, caller->notifier.get(),
        [this, caller] { read(caller); });
}

void RemoteControl::read(std::list<Caller>::iterator caller) {
    char buffer[longestCommand];
    const ssize_t count = ::recv(caller->socket.get(), buffer, sizeof buffer, 0);
    if (count > 0)
        caller->received.append(buffer, count);
    const qsizetype end = caller->received.indexOf(endOfCommand);
    if (end < 0 && count > 0 && caller->received.size() < longestCommand)
        return;
    // Taken out first: the command may end the program.
    Caller taken = std::move(*caller);
    callers_.erase(caller);
    taken.notifier->setEnabled(false);
    taken.notifier.release()->deleteLater(); // this is called by it
    if (end < 0)
        return;
    const RemoteAnswer answer = handler_(taken.received.left(end));
    const QByteArray sent = QByteArray::number(answer.status) + endOfStatus + answer.text.toUtf8();
    ::send(taken.socket.get(), sent.constData(), static_cast<size_t>(sent.size()), MSG_NOSIGNAL);
}

} // namespace velmora

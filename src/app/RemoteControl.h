#pragma once

#include "foundation/FileDescriptor.h"

#include <QByteArray>
#include <QSocketNotifier>
#include <QString>
#include <chrono>
#include <functional>
#include <list>
#include <memory>

class QDeadlineTimer;

namespace velmora {

/// What became of a command: a status as of a program, and a text for whoever gave it.
struct RemoteAnswer {
    int status = 0;
    QString text;
};

/// The program's one place in a session, and the way by which other launches hand their commands to
/// the instance that has it. The place is a locked file, freed by the system when the process ends,
/// however it ends; the way is a socket beside it. Both lie in the user's runtime folder, where
/// there is none beside the settings. Main thread only.
class RemoteControl {
public:
    enum class Claim {
        first,      ///< the place is ours
        handedOver, ///< another instance has it and has carried out the command
        noAnswer,   ///< another instance has it and does not answer
    };

    /// `session` tells sessions of one user apart: the display's name.
    explicit RemoteControl(const QString& session);
    ~RemoteControl();

    /// Takes the place, or hands `command` (without a zero byte) to the instance that has it. An
    /// instance that ends before it has answered is waited for, and its place taken. Blocks for
    /// `patience` at most; needs no event loop. Where there is no folder to lock in, every launch
    /// is the first.
    Claim
    claim(const QByteArray& command, std::chrono::milliseconds patience = std::chrono::seconds(10));

    /// What the instance that has carried out the command says to it.
    const RemoteAnswer& answer() const { return answer_; }

    /// Carries out what other launches ask, in the order in which they asked, from the event loop.
    /// They wait for the answer that `handler` returns.
    void listen(std::function<RemoteAnswer(const QByteArray& command)> handler);

    /// This instance is about to end: a launch from here on waits for that and takes the place.
    void makeRoom();

private:
    /// Another launch that is asking.
    struct Caller {
        FileDescriptor socket;
        std::unique_ptr<QSocketNotifier> notifier;
        QByteArray received;
    };

    bool openLock();
    bool takeLock();
    void openSocket();
    /// Whether the instance that has the place has carried out `command`: not when it ends before,
    /// or gives no answer until `deadline`.
    bool ask(const QByteArray& command, const QDeadlineTimer& deadline);
    void accept();
    void read(std::list<Caller>::iterator caller);

    QByteArray name_; ///< of the socket within the folder; that of the lock but for its suffix
    FileDescriptor folder_;
    FileDescriptor lock_;
    FileDescriptor socket_;
    std::unique_ptr<QSocketNotifier> notifier_;
    std::function<RemoteAnswer(const QByteArray&)> handler_;
    RemoteAnswer answer_;
    std::list<Caller> callers_;
};

} // namespace velmora

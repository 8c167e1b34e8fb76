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

    /// Takes the place, or hands `command` (one line of text) to the instance that has it. An
    /// instance that ends before it has answered is waited for, and its place taken. Blocks for
    /// `patience` at most; needs no event loop. Where there is no folder to lock in, every launch
    /// is the first.
    Claim
    claim(const QByteArray& command, std::chrono::milliseconds patience = std::chrono::seconds(10));

    /// Carries out what other launches ask, in the order in which they asked, from the event loop.
    /// They wait until `handler` has returned.
    void listen(std::function<void(const QByteArray& command)> handler);

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
    bool ask(const QByteArray& command, const QDeadlineTimer& deadline) const;
    void accept();
    void read(std::list<Caller>::iterator caller);

    QByteArray name_; ///< of the socket within the folder; that of the lock but for its suffix
    FileDescriptor folder_;
    FileDescriptor lock_;
    FileDescriptor socket_;
    std::unique_ptr<QSocketNotifier> notifier_;
    std::function<void(const QByteArray&)> handler_;
    std::list<Caller> callers_;
};

} // namespace velmora

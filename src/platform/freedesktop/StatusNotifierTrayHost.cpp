#include "platform/freedesktop/StatusNotifierTrayHost.h"

#include "platform/freedesktop/SessionBus.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {
const QString service = u"org.kde.StatusNotifierWatcher"_s;
}

StatusNotifierTrayHost::StatusNotifierTrayHost() = default;
StatusNotifierTrayHost::~StatusNotifierTrayHost() = default;

void StatusNotifierTrayHost::whenThere(std::function<void()> task) {
    if (!hasSessionBus())
        return;
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    task_ = std::move(task);
    watcher_ = std::make_unique<QDBusServiceWatcher>(
        service, bus, QDBusServiceWatcher::WatchForRegistration);
    QObject::connect(
        watcher_.get(), &QDBusServiceWatcher::serviceRegistered, watcher_.get(),
        [this] { arrived(); });
    // Asked without waiting; one that comes meanwhile is heard of all the same.
    auto* const answer = new QDBusPendingCallWatcher(
        bus.interface()->asyncCall(u"NameHasOwner"_s, service), watcher_.get());
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, watcher_.get(), [this, answer] {
        const QDBusPendingReply<bool> isThere = *answer;
        if (isThere.isValid() && isThere.value())
            arrived();
    });
}

void StatusNotifierTrayHost::arrived() {
    if (!watcher_)
        return;
    // It is the one that called.
    watcher_.release()->deleteLater();
    task_();
}

} // namespace velmora

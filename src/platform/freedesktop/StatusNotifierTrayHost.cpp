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

void StatusNotifierTrayHost::observe(std::function<void(bool isThere)> handler) {
    if (!hasSessionBus())
        return;
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    handler_ = std::move(handler);
    watcher_ = std::make_unique<QDBusServiceWatcher>(service, bus);
    QObject::connect(
        watcher_.get(), &QDBusServiceWatcher::serviceOwnerChanged, watcher_.get(),
        [this](const QString&, const QString&, const QString& owner) {
            // From one owner to the next without a gap, the items are gone all the same.
            if (!owner.isEmpty())
                report(false);
            report(!owner.isEmpty());
        });
    // Asked without waiting; a change meanwhile arrives in order.
    auto* const answer = new QDBusPendingCallWatcher(
        bus.interface()->asyncCall(u"NameHasOwner"_s, service), watcher_.get());
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, watcher_.get(), [this, answer] {
        const QDBusPendingReply<bool> reply = *answer;
        if (reply.isValid())
            report(reply.value());
        answer->deleteLater();
    });
}

void StatusNotifierTrayHost::report(bool isThere) {
    if (std::exchange(isThere_, isThere) != isThere)
        handler_(isThere);
}

} // namespace velmora

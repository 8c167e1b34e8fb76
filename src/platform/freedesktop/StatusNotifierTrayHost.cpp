#include "platform/freedesktop/StatusNotifierTrayHost.h"

#include "platform/freedesktop/SessionBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

const QString service = u"org.kde.StatusNotifierWatcher"_s;
const QString path = u"/StatusNotifierWatcher"_s;

} // namespace

StatusNotifierTrayHost::StatusNotifierTrayHost() = default;
StatusNotifierTrayHost::~StatusNotifierTrayHost() = default;

void StatusNotifierTrayHost::whenThere(std::function<void()> task) {
    if (!hasSessionBus())
        return;
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    task_ = std::move(task);
    watcher_ = std::make_unique<QDBusServiceWatcher>(
        service, bus, QDBusServiceWatcher::WatchForRegistration);
    connect(
        watcher_.get(), &QDBusServiceWatcher::serviceRegistered, this,
        &StatusNotifierTrayHost::ask);
    // From whomever: naming the sender would wait for its owner, and the answer is what counts.
    bus.connect(QString(), path, service, u"StatusNotifierHostRegistered"_s, this, SLOT(ask()));
    // One that comes meanwhile is heard of all the same.
    ask();
}

void StatusNotifierTrayHost::ask() {
    QDBusMessage question = QDBusMessage::createMethodCall(
        service, path, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    question.setArguments({service, u"IsStatusNotifierHostRegistered"_s});
    question.setAutoStartService(false);
    auto* const answer =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (reply.isValid() && reply.value().variant().toBool())
            arrived();
    });
}

void StatusNotifierTrayHost::arrived() {
    if (!watcher_)
        return;
    watcher_.reset();
    QDBusConnection::sessionBus().disconnect(
        QString(), path, service, u"StatusNotifierHostRegistered"_s, this, SLOT(ask()));
    task_();
}

} // namespace velmora

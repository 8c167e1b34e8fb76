#include "platform/freedesktop/DesktopAppearance.h"

#include "platform/freedesktop/Gio.h"
#include "platform/freedesktop/SessionBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

const QString portal = u"org.freedesktop.portal.Desktop"_s;
const QString path = u"/org/freedesktop/portal/desktop"_s;
const QString interface = u"org.freedesktop.portal.Settings"_s;
const QString group = u"org.freedesktop.appearance"_s;
const QString key = u"color-scheme"_s;

} // namespace

void DesktopAppearance::observe(Handler handler) {
    handler_ = std::move(handler);
    if (gio())
        gio()->observeColourScheme([this](const QByteArray& scheme) {
            if (!portalAnswered_)
                handler_(
                    scheme == "prefer-dark"    ? std::optional(true)
                    : scheme == "prefer-light" ? std::optional(false)
                                               : std::nullopt);
        });
    if (hasSessionBus())
        askPortal();
}

void DesktopAppearance::askPortal() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    // From whomever: naming the sender would wait for its owner.
    bus.connect(
        QString(), path, interface, u"SettingChanged"_s, this,
        SLOT(settingChanged(QString, QString, QDBusVariant)));
    QDBusMessage question = QDBusMessage::createMethodCall(portal, path, interface, u"Read"_s);
    question.setArguments({group, key});
    auto* const answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (reply.isValid())
            portalSays(reply.value());
    });
}

void DesktopAppearance::settingChanged(
    const QString& changedGroup, const QString& changedKey, const QDBusVariant& value) {
    if (changedGroup == group && changedKey == key)
        portalSays(value);
}

void DesktopAppearance::portalSays(const QDBusVariant& value) {
    // The first version of the interface wraps the number in a variant of its own.
    QVariant preference = value.variant();
    while (preference.canConvert<QDBusVariant>())
        preference = preference.value<QDBusVariant>().variant();
    if (preference.typeId() != QMetaType::UInt)
        return;
    enum : unsigned { prefersDark = 1, prefersLight = 2 };
    portalAnswered_ = true;
    const unsigned number = preference.toUInt();
    handler_(
        number == prefersDark || number == prefersLight ? std::optional(number == prefersDark)
                                                        : std::nullopt);
}

} // namespace velmora

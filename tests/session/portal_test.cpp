// Windows are dark or light as the desktop's settings service says, at the start and later.

#include "session/Session.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

/// The desktop's settings service, on the session's bus, with a colour scheme that the test sets.
class SettingsPortal : public QDBusVirtualObject {
public:
    enum Scheme : quint32 { NoPreference, Dark, Light };

    SettingsPortal(const QString& busAddress, Scheme scheme)
        : bus_(QDBusConnection::connectToBus(busAddress, u"portal"_s)), scheme_(scheme) {
        EXPECT_TRUE(bus_.registerVirtualObject(path_, this));
        EXPECT_TRUE(bus_.registerService(u"org.freedesktop.portal.Desktop"_s));
    }
    ~SettingsPortal() override { QDBusConnection::disconnectFromBus(u"portal"_s); }

    void set(Scheme scheme) {
        scheme_ = scheme;
        auto signal = QDBusMessage::createSignal(path_, interface_, u"SettingChanged"_s);
        signal << u"org.freedesktop.appearance"_s << u"color-scheme"_s << value();
        bus_.send(signal);
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        if (message.interface() != interface_ || message.member() != u"Read"_s)
            return false;
        // In a variant of its own, as the first version of the interface has it.
        return bus.send(message.createReply(QVariant::fromValue(QDBusVariant(value()))));
    }

private:
    QVariant value() const {
        return QVariant::fromValue(QDBusVariant(QVariant::fromValue(quint32(scheme_))));
    }

    const QString path_ = u"/org/freedesktop/portal/desktop"_s;
    const QString interface_ = u"org.freedesktop.portal.Settings"_s;
    QDBusConnection bus_;
    Scheme scheme_;
};

TEST(Portal, SaysWhetherWindowsAreDark) {
    for (const auto first : {SettingsPortal::Dark, SettingsPortal::Light}) {
        SCOPED_TRACE(int(first));
        Session session({.hasBus = true});
        SettingsPortal portal(session.busAddress(), first);
        session.launch();
        session.launchAnother()->waitForFinished();
        ASSERT_TRUE(session.waitForSettings());
        // The desktop behind is black: what is light is the window.
        const auto shows = [&](SettingsPortal::Scheme scheme) {
            return waitFor([&] {
                const int gray = qGray(pixel(session.client(), {756, 600}));
                return scheme == SettingsPortal::Dark ? gray > 0 && gray < 100 : gray > 200;
            });
        };
        EXPECT_TRUE(shows(first));
        for (const auto next :
             {SettingsPortal::Light, SettingsPortal::Dark, SettingsPortal::NoPreference}) {
            portal.set(next);
            EXPECT_TRUE(shows(next)) << next;
        }
    }
}

} // namespace

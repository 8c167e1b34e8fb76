// Light and dark windows: as the desktop's settings service says, or after the theme that XSETTINGS
// name.

#include "session/Session.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QtEndian>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

QByteArray bytes(std::integral auto number, bool bigEndian) {
    number = bigEndian ? qToBigEndian(number) : qToLittleEndian(number);
    return {reinterpret_cast<const char*>(&number), sizeof number};
}

QByteArray padded(QByteArray text) {
    return text.append(-text.size() & 3, '\0');
}

/// A number, a colour and the theme's name, as a manager publishes them.
QByteArray settings(const QByteArray& theme, bool bigEndian = false) {
    const auto head = [&](char type, const QByteArray& name) {
        return QByteArray(1, type) + '\0' + bytes(quint16(name.size()), bigEndian) + padded(name) +
               bytes(quint32(1), bigEndian);
    };
    return padded(QByteArray(1, char(bigEndian))) + bytes(quint32(1), bigEndian) +
           bytes(quint32(3), bigEndian) + head(0, "Xft/DPI") + bytes(quint32(98304), bigEndian) +
           head(2, "Net/Colour") + QByteArray(8, 'c') + head(1, "Net/ThemeName") +
           bytes(quint32(theme.size()), bigEndian) + padded(theme);
}

/// The desktop's settings manager.
class Manager : public XClient {
public:
    Manager() : window_(xcb_generate_id(*this)) {
        xcb_create_window(
            *this, 0, window_, root(), 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, 0, 0, nullptr);
        xcb_set_selection_owner(*this, window_, atom("_XSETTINGS_S0"), XCB_CURRENT_TIME);
        xcb_client_message_event_t message{};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = root();
        message.type = atom("MANAGER");
        message.data.data32[1] = atom("_XSETTINGS_S0");
        xcb_send_event(
            *this, 0, root(), XCB_EVENT_MASK_STRUCTURE_NOTIFY,
            reinterpret_cast<const char*>(&message));
        sync();
    }
    void publish(const QByteArray& settings) const {
        const xcb_atom_t name = atom("_XSETTINGS_SETTINGS");
        xcb_change_property(
            *this, XCB_PROP_MODE_REPLACE, window_, name, name, 8, uint32_t(settings.size()),
            settings.constData());
        sync();
    }

private:
    xcb_window_t window_;
};

/// The desktop's settings service, on the session's bus, with a colour scheme that the test sets.
class SettingsPortal : public QDBusVirtualObject {
public:
    enum Scheme : quint32 { NoPreference, Dark, Light, Unknown };

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

void showSettings(Session& session) {
    session.launch();
    EXPECT_TRUE(session.launchAnother()->waitForFinished());
    ASSERT_TRUE(session.waitForSettings());
}

/// Whether the settings are dark, or light, in a moment. The desktop behind them is black.
bool shows(Session& session, bool dark) {
    return waitFor([&] {
        const QPoint centre = screenshot(session.client()).rect().center();
        const int gray = qGray(pixel(session.client(), centre + QPoint(50, 50)));
        return (gray < 100) == dark && gray > 20;
    });
}

} // namespace

TEST(Appearance, FollowsTheThemeThatTheDesktopNames) {
    Session session;
    auto manager = std::make_unique<Manager>();
    manager->publish(settings("Greybird-dark"));
    showSettings(session);
    const auto becomes = [&](bool dark) { return shows(session, dark); };
    EXPECT_TRUE(becomes(true)) << "from the start";
    const struct {
        QByteArray settings;
        bool dark;
    } cases[] = {
        {settings("Greybird"), false},
        {settings("Mint-Y-Dark-Blue", true), true},
        {settings("Arc-Darker"), false},
        {settings("Adwaita-dark"), true},
        {settings("Adwaita-dark").chopped(1), false}, // the name is cut short
        {settings("Yaru-dark"), true},
        {QByteArray(), false},
        {settings("Yaru-dark"), true},
        {settings("x").left(20) + QByteArray(40, '\xff'), false},
        {settings("Arc-Dark"), true},
    };
    for (const auto& [published, dark] : cases) {
        manager->publish(published);
        EXPECT_TRUE(becomes(dark)) << published.toHex(' ').constData();
    }
    manager.reset();
    EXPECT_TRUE(becomes(false)) << "the manager is gone";
    manager = std::make_unique<Manager>();
    manager->publish(settings("Arc-Dark"));
    EXPECT_TRUE(becomes(true)) << "another came";
}

TEST(Appearance, ThePortalComesBeforeTheTheme) {
    using enum SettingsPortal::Scheme;
    for (const auto first : {Dark, Light}) {
        Session session({.hasBus = true});
        SettingsPortal portal(session.busAddress(), first);
        const Manager manager;
        const auto nameTheme = [&](bool dark) {
            manager.publish(settings(dark ? "Arc-Dark" : "Arc"));
        };
        nameTheme(first == Light);
        showSettings(session);
        EXPECT_TRUE(shows(session, first == Dark)) << "from the start";
        const struct {
            SettingsPortal::Scheme scheme;
            bool theme, dark;
        } cases[] = {
            {Light, true, false},       {Dark, false, true},  {NoPreference, false, false},
            {NoPreference, true, true}, {Light, true, false}, {Unknown, true, true},
            {Dark, false, true},
        };
        for (const auto& [scheme, theme, dark] : cases) {
            nameTheme(theme);
            portal.set(scheme);
            EXPECT_TRUE(shows(session, dark)) << scheme << theme;
        }
    }
}

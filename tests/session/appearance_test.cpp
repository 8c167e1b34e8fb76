// Light and dark windows after the theme that a desktop names in XSETTINGS.

#include "session/Session.h"

#include <QtEndian>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
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

} // namespace

TEST(Appearance, FollowsTheThemeThatTheDesktopNames) {
    Session session;
    auto manager = std::make_unique<Manager>();
    manager->publish(settings("Greybird-dark"));
    session.launch();
    EXPECT_TRUE(session.launchAnother()->waitForFinished());
    ASSERT_TRUE(session.waitForSettings());
    const auto becomes = [&](bool dark) {
        return waitFor([&] {
            const QPoint centre = screenshot(session.client()).rect().center();
            const QImage part = screenshot(session.client(), {centre.x(), centre.y(), 100, 100});
            return (qGray(part.pixel(50, 50)) < 100) == dark && qGray(part.pixel(50, 50)) > 20;
        });
    };
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

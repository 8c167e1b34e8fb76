#include "platform/x11/session/X11Appearance.h"

#include "platform/x11/base/WindowQueries.h"

#include <QString>
#include <QStringList>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// Takes numbers and bytes from the front; once there are too few, it stays without any.
class Reader {
public:
    explicit Reader(QByteArrayView data) : rest_(data) {}

    bool isIntact() const { return isIntact_; }

    QByteArrayView bytes(qsizetype count) {
        isIntact_ = isIntact_ && count >= 0 && count <= rest_.size();
        const QByteArrayView taken = isIntact_ ? rest_.first(count) : QByteArrayView();
        rest_ = rest_.sliced(taken.size());
        return taken;
    }

    /// Bytes that are filled up to a multiple of four.
    QByteArrayView paddedBytes(qsizetype count) {
        const QByteArrayView taken = bytes(count);
        bytes(-count & 3);
        return taken;
    }

    template<typename Number>
    Number number() {
        const QByteArrayView taken = bytes(sizeof(Number));
        if (!isIntact_)
            return 0;
        return isBigEndian ? qFromBigEndian<Number>(taken.data())
                           : qFromLittleEndian<Number>(taken.data());
    }

    bool isBigEndian = false;

private:
    QByteArrayView rest_;
    bool isIntact_ = true;
};

enum Type : quint8 { Integer = 0, Text = 1, Colour = 2 };

/// The value of the text called `name` in what an XSETTINGS manager publishes
/// ("_XSETTINGS_SETTINGS" of its window), in either byte order; nothing when there is none or the
/// data are damaged before it.
std::optional<QByteArrayView> xsettingsText(QByteArrayView settings, QByteArrayView name) {
    Reader reader(settings);
    reader.isBigEndian = reader.number<quint8>() == 1;
    reader.bytes(3 + 4); // unused, serial number of the whole
    const auto count = reader.number<quint32>();
    for (quint32 i = 0; i < count && reader.isIntact(); ++i) {
        const auto type = reader.number<quint8>();
        reader.bytes(1);
        const bool isWanted = reader.paddedBytes(reader.number<quint16>()) == name;
        reader.bytes(4); // serial number of the last change
        QByteArrayView value;
        if (type == Text)
            value = reader.paddedBytes(reader.number<quint32>());
        else if (type == Integer || type == Colour)
            reader.bytes(type == Integer ? 4 : 8);
        else
            return {};
        if (isWanted && type == Text && reader.isIntact())
            return value;
    }
    return {};
}

bool isDark(QByteArrayView theme) {
    return QString::fromUtf8(theme).split(u'-').contains("dark"_L1, Qt::CaseInsensitive);
}

} // namespace

void X11Appearance::observe(Handler handler) {
    handler_ = std::move(handler);
    desktop_.observe([this](std::optional<bool> prefersDark) {
        desktopPrefers_ = prefersDark;
        tell();
    });
    selection_ = connection_.atom("_XSETTINGS_S" + QByteArray::number(connection_.screenNumber()));
    property_ = connection_.atom("_XSETTINGS_SETTINGS");
    subscription_ =
        connection_.subscribe([this](const xcb_generic_event_t& event) { handle(event); });
    // First, so that one that comes meanwhile is not missed: a new owner announces itself there.
    alsoSelectEvents(connection_, connection_.root(), XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    findManager();
}

void X11Appearance::findManager() {
    const XcbOwned<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        connection_, xcb_get_selection_owner(connection_, selection_), nullptr));
    manager_ = reply ? reply->owner : xcb_window_t(XCB_WINDOW_NONE);
    if (manager_ != XCB_WINDOW_NONE) {
        constexpr std::uint32_t events =
            XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        // Checked: it may have gone by now.
        const XcbOwned<xcb_generic_error_t> ignored(xcb_request_check(
            connection_, xcb_change_window_attributes_checked(
                             connection_, manager_, XCB_CW_EVENT_MASK, &events)));
    }
    readTheme();
}

void X11Appearance::readTheme() {
    constexpr std::uint32_t longest = 1024 * 1024 / 4; // in units of four bytes
    const XcbOwned<xcb_get_property_reply_t> reply(
        manager_ == XCB_WINDOW_NONE
            ? nullptr
            : xcb_get_property_reply(
                  connection_,
                  xcb_get_property(connection_, 0, manager_, property_, property_, 0, longest),
                  nullptr));
    const QByteArrayView settings =
        reply && reply->format == 8
            ? QByteArrayView(
                  static_cast<const char*>(xcb_get_property_value(reply.get())),
                  xcb_get_property_value_length(reply.get()))
            : QByteArrayView();
    const auto theme = xsettingsText(settings, "Net/ThemeName");
    themePrefers_ = theme && isDark(*theme) ? std::optional(true) : std::nullopt;
    tell();
}

void X11Appearance::tell() const {
    handler_(desktopPrefers_ ? desktopPrefers_ : themePrefers_);
}

void X11Appearance::handle(const xcb_generic_event_t& event) {
    switch (event.response_type & ~0x80) {
    case XCB_CLIENT_MESSAGE: {
        const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
        if (message.type == connection_.atom("MANAGER") && message.data.data32[1] == selection_)
            findManager();
        break;
    }
    case XCB_DESTROY_NOTIFY:
        if (reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == manager_)
            findManager();
        break;
    case XCB_PROPERTY_NOTIFY: {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (change.window == manager_ && change.atom == property_)
            readTheme();
        break;
    }
    default:
        break;
    }
}

} // namespace velmora

#include "platform/x11/session/X11Appearance.h"

#include "platform/x11/base/WindowQueries.h"
#include "platform/x11/session/XSettings.h"

#include <QString>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

bool isDark(QByteArrayView theme) {
    return QString::fromUtf8(theme).split(u'-').contains("dark"_L1, Qt::CaseInsensitive);
}

} // namespace

void X11Appearance::observe(Handler handler) {
    handler_ = std::move(handler);
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
    handler_(theme && isDark(*theme) ? std::optional(true) : std::nullopt);
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

#include "platform/x11/session/X11TrayHost.h"

#include "platform/x11/base/WindowQueries.h"

#include <utility>

namespace velmora {
namespace {

bool hasOwner(X11Connection& connection, xcb_atom_t selection) {
    const XcbOwned<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        connection, xcb_get_selection_owner(connection, selection), nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

} // namespace

void X11TrayHost::whenThere(std::function<void()> task) {
    task_ = std::move(task);
    notifier_.whenThere([this] { arrived(); });
    awaitEmbedder();
}

void X11TrayHost::awaitEmbedder() {
    selection_ =
        connection_.atom("_NET_SYSTEM_TRAY_S" + QByteArray::number(connection_.screenNumber()));
    // First, so that one that comes meanwhile is not missed: a new owner announces itself there.
    alsoSelectEvents(connection_, connection_.root(), XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    subscription_ =
        connection_.subscribe([this](const xcb_generic_event_t& event) { handle(event); });
    if (hasOwner(connection_, selection_))
        arrived();
}

void X11TrayHost::handle(const xcb_generic_event_t& event) {
    if ((event.response_type & ~0x80) != XCB_CLIENT_MESSAGE)
        return;
    const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
    if (message.type == connection_.atom("MANAGER") && message.data.data32[1] == selection_)
        arrived();
}

void X11TrayHost::arrived() {
    subscription_ = {};
    if (const auto task = std::exchange(task_, nullptr))
        task();
}

} // namespace velmora

#pragma once

#include "platform/freedesktop/StatusNotifierTrayHost.h"
#include "platform/x11/base/X11Connection.h"

namespace velmora {

/// A tray of either kind, whichever comes first: one that draws items described on the session bus,
/// or one that embeds windows, the owner of the manager selection "_NET_SYSTEM_TRAY_S<screen>".
class X11TrayHost : public TrayHost {
public:
    explicit X11TrayHost(X11Connection& connection) : connection_(connection) {}

    void whenThere(std::function<void()> task) override;

private:
    void awaitEmbedder();
    void handle(const xcb_generic_event_t& event);
    void arrived();

    X11Connection& connection_;
    X11Connection::Subscription subscription_;
    xcb_atom_t selection_ = XCB_ATOM_NONE;
    StatusNotifierTrayHost notifier_;
    std::function<void()> task_; ///< until there is a tray
};

} // namespace velmora

#pragma once

#include "platform/TrayHost.h"
#include "platform/x11/base/X11Connection.h"

namespace velmora {

/// Trays that embed windows: the owner of the manager selection "_NET_SYSTEM_TRAY_S<screen>".
class X11TrayHost : public TrayHost {
public:
    explicit X11TrayHost(X11Connection& connection) : connection_(connection) {}

    void whenThere(std::function<void()> task) override;

private:
    void handle(const xcb_generic_event_t& event);

    X11Connection& connection_;
    X11Connection::Subscription subscription_;
    xcb_atom_t selection_ = XCB_ATOM_NONE;
    std::function<void()> task_;
};

} // namespace velmora

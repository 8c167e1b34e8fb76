#pragma once

#include "platform/Appearance.h"
#include "platform/x11/base/X11Connection.h"

namespace velmora {

/// The appearance that follows from the theme which a desktop's XSETTINGS manager names: dark where
/// a part of its name is "dark" ("Greybird-dark"), else no preference.
class X11Appearance : public Appearance {
public:
    explicit X11Appearance(X11Connection& connection) : connection_(connection) {}

    void observe(Handler handler) override;

private:
    void findManager();
    void readTheme();
    void handle(const xcb_generic_event_t& event);

    X11Connection& connection_;
    X11Connection::Subscription subscription_;
    xcb_window_t manager_ = XCB_WINDOW_NONE;
    xcb_atom_t selection_ = XCB_ATOM_NONE;
    xcb_atom_t property_ = XCB_ATOM_NONE;
    Handler handler_;
};

} // namespace velmora

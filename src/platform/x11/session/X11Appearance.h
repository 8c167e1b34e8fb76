#pragma once

#include "platform/freedesktop/DesktopAppearance.h"
#include "platform/x11/base/X11Connection.h"

namespace velmora {

/// The appearance that the desktop's own settings ask for, and where these have no preference, what
/// follows from the theme which its XSETTINGS manager names: dark where a part of that name is
/// "dark"
/// ("Greybird-dark").
class X11Appearance : public Appearance {
public:
    explicit X11Appearance(X11Connection& connection) : connection_(connection) {}

    void observe(Handler handler) override;

private:
    void findManager();
    void readTheme();
    void handle(const xcb_generic_event_t& event);
    void tell() const;

    X11Connection& connection_;
    X11Connection::Subscription subscription_;
    xcb_window_t manager_ = XCB_WINDOW_NONE;
    xcb_atom_t selection_ = XCB_ATOM_NONE;
    xcb_atom_t property_ = XCB_ATOM_NONE;
    DesktopAppearance desktop_;
    std::optional<bool> desktopPrefers_;
    std::optional<bool> themePrefers_;
    Handler handler_;
};

} // namespace velmora

#pragma once

#include <memory>

namespace velmora {

class Accessibility;
class Appearance;
class InputGrants;
class KeyboardEvents;
class PanelWindows;
class Screens;
class TrayHost;
class WindowActivation;
class X11Connection;

/// The services of an X11 session over one connection of their own beside Qt's.
class X11Session {
public:
    /// Connects to the display that the environment names; nothing when that fails. Needs no
    /// application object; the services do.
    static std::unique_ptr<X11Session> create();
    ~X11Session();

    Accessibility& accessibility();
    Appearance& appearance();
    InputGrants& inputGrants();
    KeyboardEvents& keyboardEvents();
    PanelWindows& panelWindows();
    Screens& screens();
    /// Needs no application object.
    TrayHost& trayHost();
    WindowActivation& windowActivation();

private:
    explicit X11Session(std::unique_ptr<X11Connection> connection);

    struct Services;
    Services& services();

    std::unique_ptr<X11Connection> connection_;
    std::unique_ptr<Services> services_;
};

} // namespace velmora

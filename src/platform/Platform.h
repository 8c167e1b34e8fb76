#pragma once

namespace velmora {

class Accessibility;
class Appearance;
class InputGrants;
class KeyboardEvents;
class PanelWindows;
class Screens;
class TrayHost;
class WindowActivation;
class Workspace;

/// The services of the desktop session, put together once by the program's entry. Everything above
/// this room sees the session only through these interfaces. Main thread only, unless a service
/// says otherwise.
struct Platform {
    Accessibility& accessibility;
    Appearance& appearance;
    InputGrants& inputGrants;
    KeyboardEvents& keyboardEvents;
    PanelWindows& panelWindows;
    Screens& screens;
    TrayHost& trayHost;
    WindowActivation& windowActivation;
    Workspace& workspace;

    /// The session's services; setCurrent() comes first.
    static const Platform& current();

    /// Makes `platform` the current one. It must live until the process ends.
    static void setCurrent(const Platform& platform);
};

} // namespace velmora

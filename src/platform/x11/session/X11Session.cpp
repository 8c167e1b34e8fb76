#include "platform/x11/session/X11Session.h"

#include "platform/freedesktop/DesktopWorkspace.h"
#include "platform/freedesktop/Gio.h"
#include "platform/freedesktop/SessionBus.h"
#include "platform/x11/grants/X11InputGrants.h"
#include "platform/x11/keyboard/X11Keyboard.h"
#include "platform/x11/panel/X11Panel.h"
#include "platform/x11/screens/X11Screens.h"
#include "platform/x11/session/X11Accessibility.h"
#include "platform/x11/session/X11Appearance.h"
#include "platform/x11/session/X11TrayHost.h"
#include "platform/x11/session/X11WindowActivation.h"
#include "platform/x11/synthesis/X11KeyboardEvents.h"

namespace velmora {

/// Built when first asked for, by when the application object is there.
struct X11Session::Services {
    explicit Services(X11Connection& connection)
        : accessibility(connection),
          appearance(connection),
          keyboard(connection),
          inputGrants(connection, keyboard),
          keyboardEvents(keyboard),
          screens(connection),
          panels(connection, screens),
          trayHost(connection),
          windowActivation(connection) {
        startNoSessionBus();
        connection.startDelivery();
    }

    X11Accessibility accessibility;
    X11Appearance appearance;
    X11Keyboard keyboard;
    X11InputGrants inputGrants;
    X11KeyboardEvents keyboardEvents;
    X11Screens screens;
    X11Panels panels;
    X11TrayHost trayHost;
    X11WindowActivation windowActivation;
    DesktopWorkspace workspace;
};

std::unique_ptr<X11Session> X11Session::open() {
    auto connection = X11Connection::open();
    if (!connection)
        return nullptr;
    return std::unique_ptr<X11Session>(new X11Session(std::move(connection)));
}

X11Session::X11Session(std::unique_ptr<X11Connection> connection)
    : connection_(std::move(connection)) {}

X11Session::~X11Session() = default;

X11Session::Services& X11Session::services() {
    if (!services_)
        services_ = std::make_unique<Services>(*connection_);
    return *services_;
}

QByteArrayList X11Session::qtArguments() const {
    return {"-platform", "xcb", "-display", qgetenv("DISPLAY")};
}

QString X11Session::name() const {
    return qEnvironmentVariable("DISPLAY");
}

Accessibility& X11Session::accessibility() {
    return services().accessibility;
}

Appearance& X11Session::appearance() {
    return services().appearance;
}

InputGrants& X11Session::inputGrants() {
    return services().inputGrants;
}

KeyboardEvents& X11Session::keyboardEvents() {
    return services().keyboardEvents;
}

Panels& X11Session::panels() {
    return services().panels;
}

Screens& X11Session::screens() {
    return services().screens;
}

TrayHost& X11Session::trayHost() {
    return services().trayHost;
}

WindowActivation& X11Session::windowActivation() {
    return services().windowActivation;
}

Workspace& X11Session::workspace() {
    return services().workspace;
}

void X11Session::prepareTheRest() {
    // Not with the first use: by then an update may have replaced the module.
    gio();
    keyboardEvents().prepare();
}

} // namespace velmora

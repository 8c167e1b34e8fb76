// Picks the session's services and runs the application on them.

#include "app/VelmoraApp.h"
#include "foundation/Log.h"
#include "platform/EitherTrayHost.h"
#include "platform/Platform.h"
#include "platform/SingleInstance.h"
#include "platform/freedesktop/FreedesktopAppearance.h"
#include "platform/freedesktop/FreedesktopWorkspace.h"
#include "platform/freedesktop/SessionBus.h"
#include "platform/freedesktop/StatusNotifierTrayHost.h"
#include "platform/x11/X11Session.h"

#include <QApplication>
#include <cstdlib>

using namespace Qt::StringLiterals;
using namespace velmora;

int main(int argc, char** argv) {
    // Before Qt, which aborts without a display.
    const auto session = X11Session::create();
    if (!session) {
        Log::write(u"Velmora needs an X11 display; none answers."_s);
        return EXIT_FAILURE;
    }
    if (!session->singleInstance().claim())
        return EXIT_SUCCESS; // the one that runs comes forward
    QApplication::setApplicationName(u"velmora"_s);
    QApplication::setDesktopFileName(u"velmora"_s);
    const QApplication application(argc, argv);
    startNoSessionBus();
    FreedesktopAppearance appearance;
    FreedesktopWorkspace workspace;
    StatusNotifierTrayHost statusNotifierTrayHost;
    EitherTrayHost trayHost(statusNotifierTrayHost, session->trayHost());
    const Platform platform{
        .accessibility = session->accessibility(),
        .appearance = appearance,
        .eventTaps = session->eventTaps(),
        .keyboardEvents = session->keyboardEvents(),
        .panelWindows = session->panelWindows(),
        .screens = session->screens(),
        .singleInstance = session->singleInstance(),
        .trayHost = trayHost,
        .windowActivation = session->windowActivation(),
        .workspace = workspace,
    };
    Platform::setCurrent(platform);
    return VelmoraApp::main();
}

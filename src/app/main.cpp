// Picks the session's services and runs the application on them.

#include "app/VelmoraApp.h"
#include "foundation/Log.h"
#include "platform/Platform.h"
#include "platform/freedesktop/FreedesktopAppearance.h"
#include "platform/freedesktop/FreedesktopWorkspace.h"
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
    QApplication::setApplicationName(u"velmora"_s);
    QApplication::setDesktopFileName(u"velmora"_s);
    const QApplication application(argc, argv);
    FreedesktopAppearance appearance;
    FreedesktopWorkspace workspace;
    const Platform platform{
        .accessibility = session->accessibility(),
        .appearance = appearance,
        .eventTaps = session->eventTaps(),
        .keyboardEvents = session->keyboardEvents(),
        .panelWindows = session->panelWindows(),
        .screens = session->screens(),
        .windowActivation = session->windowActivation(),
        .workspace = workspace,
    };
    Platform::setCurrent(platform);
    return VelmoraApp::main();
}

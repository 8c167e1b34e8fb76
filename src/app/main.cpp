// Picks the session's services and runs the application on them.

#include "app/AfterFirstPaint.h"
#include "app/VelmoraApp.h"
#include "foundation/HomeFolder.h"
#include "foundation/Log.h"
#include "platform/EitherAppearance.h"
#include "platform/EitherTrayHost.h"
#include "platform/Platform.h"
#include "platform/SingleInstance.h"
#include "platform/freedesktop/LateGio.h"
#include "platform/freedesktop/SessionBus.h"
#include "platform/freedesktop/StatusNotifierTrayHost.h"
#include "platform/x11/X11Session.h"

#include <QApplication>
#include <clocale>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <fontconfig/fontconfig.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

/// Sees to what the program inherits from whoever started it.
void tidyInheritance() {
    // A missing standard stream: the next file or connection opened would take its number, and the
    // log would be written into it.
    int descriptor = 0;
    do
        descriptor = ::open("/dev/null", O_RDWR);
    while (descriptor >= 0 && descriptor <= STDERR_FILENO);
    ::close(descriptor);
    // A log whose reader has gone.
    std::signal(SIGPIPE, SIG_IGN);
    ensureHomeFolder();
}

} // namespace

int main(int argc, char** argv) {
    tidyInheritance();
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
    // As Qt does: from here on the thread below and Qt see the same.
    std::setlocale(LC_ALL, "");
    // Qt reads the fonts' configuration when it draws the first text; beside the start of the rest
    // that takes no time.
    std::jthread fontConfiguration([] { FcInit(); });
    // Before the application object, whose end waits for the threads that use it.
    LateWorkspace workspace;
    QApplication application(argc, argv);
    LateAppearance lateAppearance;
    EitherAppearance appearance(lateAppearance, session->appearance());
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
    fontConfiguration.join(); // from here on the environment may change
    startNoSessionBus();
    // Not with the first use: by then an update may have replaced the module.
    new AfterFirstPaint(&application, loadGio);
    return VelmoraApp::main();
}

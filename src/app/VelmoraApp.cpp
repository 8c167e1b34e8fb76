#include "app/VelmoraApp.h"

#include "app/AfterFirstPaint.h"
#include "app/AppDelegate.h"
#include "app/RemoteControl.h"
#include "app/TerminationSignals.h"
#include "foundation/HelperPath.h"
#include "foundation/LocalizedString.h"
#include "foundation/Log.h"
#include "platform/KeyboardEvents.h"
#include "platform/Platform.h"
#include "viewkit/AccessibleViews.h"

#include <QApplication>
#include <QThreadPool>
#include <QTimer>
#include <cstdlib>

namespace velmora {

namespace {
constexpr int poolThreads = 8;             // they wait for disks rather than for processors
constexpr int longestWaitForThreads = 200; // milliseconds
} // namespace

std::unique_ptr<AppDelegate> VelmoraApp::appDelegate;

int VelmoraApp::main(RemoteControl& remoteControl, RemoteCommand command) {
    QApplication::setQuitOnLastWindowClosed(false);
    const TerminationSignals terminationSignals;
    appendHelperPath();
    // Good for this start alone: what is started from here must not use them up once more.
    for (const char* variable : {"DESKTOP_STARTUP_ID", "XDG_ACTIVATION_TOKEN"})
        qunsetenv(variable);
    installLocalizedStrings();
    installAccessibleViews();
    QThreadPool::globalInstance()->setMaxThreadCount(poolThreads);
    appDelegate = std::make_unique<AppDelegate>(remoteControl);
    QTimer::singleShot(0, appDelegate.get(), [command] {
        appDelegate->applicationDidFinishLaunching();
        appDelegate->carryOutAtStart(command);
    });
    new AfterFirstPaint(
        QCoreApplication::instance(), [] { Platform::current().keyboardEvents.prepare(); });
    const int status = QApplication::exec();
    // A launch from here on must not count on this instance.
    remoteControl.makeRoom();
    appDelegate.reset();
    // A scan or the reading of an icon may hang on a disk that does not answer.
    if (!QThreadPool::globalInstance()->waitForDone(longestWaitForThreads)) {
        Log::flush();
        std::_Exit(status);
    }
    return status;
}

} // namespace velmora

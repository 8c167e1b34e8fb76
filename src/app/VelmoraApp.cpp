#include "app/VelmoraApp.h"

#include "app/AfterFirstPaint.h"
#include "app/AppDelegate.h"
#include "app/TerminationSignals.h"
#include "foundation/HelperPath.h"
#include "foundation/LocalizedString.h"
#include "platform/KeyboardEvents.h"
#include "platform/Platform.h"
#include "platform/SingleInstance.h"
#include "viewkit/AccessibleViews.h"

#include <QApplication>
#include <QTimer>

namespace velmora {

std::unique_ptr<AppDelegate> VelmoraApp::appDelegate;

int VelmoraApp::main() {
    QApplication::setQuitOnLastWindowClosed(false);
    const TerminationSignals terminationSignals;
    appendHelperPath();
    // Good for this start alone: what is started from here must not use them up once more.
    for (const char* variable : {"DESKTOP_STARTUP_ID", "XDG_ACTIVATION_TOKEN"})
        qunsetenv(variable);
    installLocalizedStrings();
    installAccessibleViews();
    appDelegate = std::make_unique<AppDelegate>();
    QTimer::singleShot(0, appDelegate.get(), &AppDelegate::applicationDidFinishLaunching);
    new AfterFirstPaint(QCoreApplication::instance(), [] {
        Platform::current().keyboardEvents.releaseAbandonedKeys();
    });
    const int status = QApplication::exec();
    // A launch from here on must not count on this instance.
    Platform::current().singleInstance.makeRoom();
    appDelegate.reset();
    return status;
}

} // namespace velmora

#include "app/VelmoraApp.h"

#include "app/AfterFirstPaint.h"
#include "app/AppDelegate.h"
#include "app/RemoteControl.h"
#include "app/TerminationSignals.h"
#include "foundation/Environment.h"
#include "foundation/LocalizedString.h"
#include "foundation/Log.h"
#include "platform/Session.h"
#include "viewkit/AccessibleViews.h"
#include "viewkit/Style.h"

#include <QApplication>
#include <QThreadPool>
#include <QTimer>
#include <clocale>
#include <cstdlib>
#include <fontconfig/fontconfig.h>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr int poolThreads = 8;             // they wait for disks rather than for processors
constexpr int longestWaitForThreads = 200; // milliseconds

/// The program's arguments for Qt, with the session's at the end, where they come before anything
/// else that the user or the environment says. Qt keeps to them for the application's life.
class QtArguments {
public:
    QtArguments(int argc, char** argv) : values_(argv, argv + argc) {
        for (QByteArray& value : sessions_)
            values_.push_back(value.data());
        count_ = static_cast<int>(values_.size());
        values_.push_back(nullptr);
    }

    int& count() { return count_; }
    char** values() { return values_.data(); }

private:
    QByteArrayList sessions_ = Session::current().qtArguments();
    std::vector<char*> values_;
    int count_;
};

} // namespace

std::unique_ptr<AppDelegate> VelmoraApp::appDelegate;

int VelmoraApp::main(int argc, char** argv, RemoteControl& remoteControl, RemoteCommand command) {
    QApplication::setApplicationName(u"velmora"_s);
    QApplication::setDesktopFileName(u"velmora"_s);
    // As Qt does: from here on the thread below and Qt see the same.
    std::setlocale(LC_ALL, "");
    // Qt reads the fonts' configuration when it draws the first text; beside the start of the rest
    // that takes no time.
    std::jthread fontConfiguration([] { FcInit(); });
    QtArguments arguments(argc, argv);
    QApplication::setStyle(new Style); // first, or Qt makes one of its own
    const QApplication application(arguments.count(), arguments.values());
    fontConfiguration.join(); // from here on the environment may change
    QApplication::setQuitOnLastWindowClosed(false);
    const TerminationSignals terminationSignals;
    Environment::prepareForCommands();
    installLocalizedStrings();
    installAccessibleViews();
    QThreadPool::globalInstance()->setMaxThreadCount(poolThreads);

    appDelegate = std::make_unique<AppDelegate>(remoteControl);
    QTimer::singleShot(0, appDelegate.get(), [command] {
        appDelegate->applicationDidFinishLaunching();
        appDelegate->carryOutAtStart(command);
    });
    new AfterFirstPaint(qApp, [] { Session::current().prepareTheRest(); });
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

// Picks the session's services and runs the application on them.

#include "app/AfterFirstPaint.h"
#include "app/CommandLine.h"
#include "app/LastWords.h"
#include "app/RemoteControl.h"
#include "app/VelmoraApp.h"
#include "foundation/HomeFolder.h"
#include "foundation/SystemRoom.h"
#include "platform/EitherAppearance.h"
#include "platform/EitherTrayHost.h"
#include "platform/Platform.h"
#include "platform/freedesktop/LateGio.h"
#include "platform/freedesktop/SessionBus.h"
#include "platform/freedesktop/StatusNotifierTrayHost.h"
#include "platform/x11/session/X11Session.h"

#include <QApplication>
#include <array>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <fontconfig/fontconfig.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

/// What a start takes, with something left for its first commands.
constexpr int startDescriptors = 24;
constexpr std::size_t startMemory = 192 * 1024 * 1024;

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

/// The program's arguments for Qt, with the platform and the display at the end, where they come
/// before anything else that the user or the session says: the services are those of this very X
/// server. Not through the environment, which whatever is launched from here inherits.
class QtArguments {
public:
    QtArguments(int count, char** values) : values_(values, values + count) {
        for (QByteArray& value : own_)
            values_.push_back(value.data());
        count_ = static_cast<int>(values_.size());
        values_.push_back(nullptr);
    }

    int& count() { return count_; }
    char** values() { return values_.data(); }

private:
    std::array<QByteArray, 4> own_{"-platform", "xcb", "-display", qgetenv("DISPLAY")};
    std::vector<char*> values_;
    int count_;
};

} // namespace

int main(int argc, char** argv) {
    tidyInheritance();
    const CommandLine line = readCommandLine({argv, static_cast<std::size_t>(argc)});
    if (!line.error.isEmpty()) {
        std::fputs(qUtf8Printable(line.error + u'\n'), stderr);
        return 2;
    }
    if (!line.answer.isEmpty()) {
        std::puts(qUtf8Printable(line.answer));
        return EXIT_SUCCESS;
    }
    installLastWords();
    if (!hasSystemRoom(startDescriptors, startMemory))
        endWithReason("too few files may be open, or too little memory is left.");
    const auto session = X11Session::create();
    if (!session)
        endWithReason("it needs an X11 display, and none answers.");
    RemoteControl remoteControl(qEnvironmentVariable("DISPLAY"));
    switch (remoteControl.claim(remoteCommandName(line.command))) {
    case RemoteControl::Claim::handedOver:
        return EXIT_SUCCESS;
    case RemoteControl::Claim::noAnswer:
        endWithReason("the instance that runs does not answer.");
    case RemoteControl::Claim::first:
        break;
    }
    if (line.command == RemoteCommand::quit)
        return EXIT_SUCCESS;
    QApplication::setApplicationName(u"velmora"_s);
    QApplication::setDesktopFileName(u"velmora"_s);
    // As Qt does: from here on the thread below and Qt see the same.
    std::setlocale(LC_ALL, "");
    // Qt reads the fonts' configuration when it draws the first text; beside the start of the rest
    // that takes no time.
    std::jthread fontConfiguration([] { FcInit(); });
    // Before the application object, whose end waits for the threads that use it.
    LateWorkspace workspace;
    QtArguments arguments(argc, argv);
    QApplication application(arguments.count(), arguments.values());
    LateAppearance lateAppearance;
    EitherAppearance appearance(lateAppearance, session->appearance());
    StatusNotifierTrayHost statusNotifierTrayHost;
    EitherTrayHost trayHost(statusNotifierTrayHost, session->trayHost());
    const Platform platform{
        .accessibility = session->accessibility(),
        .appearance = appearance,
        .inputGrants = session->inputGrants(),
        .keyboardEvents = session->keyboardEvents(),
        .panelWindows = session->panelWindows(),
        .screens = session->screens(),
        .trayHost = trayHost,
        .windowActivation = session->windowActivation(),
        .workspace = workspace,
    };
    Platform::setCurrent(platform);
    fontConfiguration.join(); // from here on the environment may change
    startNoSessionBus();
    // Not with the first use: by then an update may have replaced the module.
    new AfterFirstPaint(&application, loadGio);
    return VelmoraApp::main(remoteControl, line.command);
}

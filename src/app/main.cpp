// Opens the session that the program was started in, and runs the application in it.

#include "app/CommandLine.h"
#include "app/ExchangeCommand.h"
#include "app/LastWords.h"
#include "app/RemoteControl.h"
#include "app/VelmoraApp.h"
#include "foundation/Environment.h"
#include "foundation/SystemRoom.h"
#include "platform/session/OpenSession.h"

#include <cstdio>
#include <cstdlib>

using namespace velmora;

namespace {

/// What a start takes, with something left for its first commands.
constexpr int startDescriptors = 24;
constexpr std::size_t startMemory = 192 * 1024 * 1024;

} // namespace

int main(int argc, char** argv) {
    Environment::repair();
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
    const auto opened = openSession();
    if (const auto* const reason = std::get_if<std::string>(&opened)) {
        if (line.request.isExchange())
            return printed(carryOutExchange(line.request));
        endWithReason(reason->c_str());
    }
    Session::setCurrent(*std::get<std::unique_ptr<Session>>(opened));
    RemoteControl remoteControl(Session::current().name());
    switch (remoteControl.claim(encoded(line.request))) {
    case RemoteControl::Claim::handedOver:
        return printed(remoteControl.answer());
    case RemoteControl::Claim::noAnswer:
        endWithReason("the instance that runs does not answer.");
    case RemoteControl::Claim::first:
        break;
    }
    if (line.request.isExchange())
        return printed(carryOutExchange(line.request));
    if (line.request.command == RemoteCommand::quit)
        return EXIT_SUCCESS;
    return VelmoraApp::main(argc, argv, remoteControl, line.request.command);
}

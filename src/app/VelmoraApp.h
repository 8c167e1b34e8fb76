#pragma once

#include "app/CommandLine.h"

#include <memory>

namespace velmora {

class AppDelegate;
class RemoteControl;

/// The application: holds the one delegate and runs the event loop. Never instantiated.
class VelmoraApp {
public:
    VelmoraApp() = delete;

    /// The one delegate, for the life of the process.
    static std::unique_ptr<AppDelegate> appDelegate;

    /// Runs the application in the current session, with the program's arguments; returns its exit
    /// status when the event loop ends. `remoteControl` has the program's place; `command` is
    /// carried out once the application is up.
    static int main(int argc, char** argv, RemoteControl& remoteControl, RemoteCommand command);
};

} // namespace velmora

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

    /// Runs the application on the current platform; returns its exit status when the event loop
    /// ends. The application object must exist. `remoteControl` has the program's place; `command`
    /// is carried out once the application is up.
    static int main(RemoteControl& remoteControl, RemoteCommand command);
};

} // namespace velmora

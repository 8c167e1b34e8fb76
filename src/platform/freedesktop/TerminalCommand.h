#pragma once

#include <QString>
#include <optional>

namespace velmora {

/// What to put before a command line to run it in the user's terminal emulator ("xterm -e");
/// nothing when none is installed.
std::optional<QString> terminalCommand();

} // namespace velmora

#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <span>

namespace velmora {

/// What a launch asks of the instance that runs, or of itself when it is the first.
enum class RemoteCommand { comeForward, toggle, show, hide, settings, quit };

/// The command by its name on the command line without the hyphens; nothing for any other name.
std::optional<RemoteCommand> remoteCommand(const QByteArray& name);
/// The reverse; empty for comeForward, which has no option.
QByteArray remoteCommandName(RemoteCommand command);

/// What the program's arguments ask for.
struct CommandLine {
    RemoteCommand command = RemoteCommand::comeForward;
    /// Text for standard output, after which the launch is done: --help and --version.
    QString answer{};
    /// Why the arguments make no sense, for standard error; empty when they do.
    QString error{};
};

/// Reads `arguments`, the program's name first. Arguments with one hyphen, and what follows them,
/// are Qt's and left alone. Main thread, without an application object.
CommandLine readCommandLine(std::span<char* const> arguments);

} // namespace velmora

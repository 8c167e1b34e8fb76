#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <span>

namespace velmora {

/// What a launch asks of the instance that runs, or of itself when it is the first.
enum class RemoteCommand {
    comeForward,
    toggle,
    show,
    hide,
    settings,
    quit,
    importSetup,
    exportSetup
};

struct RemoteRequest {
    RemoteCommand command = RemoteCommand::comeForward;
    QString file{}; ///< of an import or an export, with its absolute path

    bool isExchange() const { return !file.isEmpty(); }
};

/// The form in which one launch hands it to the other; has no zero byte.
QByteArray encoded(const RemoteRequest& request);
/// The reverse; nothing for what is no request.
std::optional<RemoteRequest> decodedRequest(const QByteArray& bytes);

/// What the program's arguments ask for.
struct CommandLine {
    RemoteRequest request{};
    /// Text for standard output, after which the launch is done: --help and --version.
    QString answer{};
    /// Why the arguments make no sense, for standard error; empty when they do.
    QString error{};
};

/// Reads `arguments`, the program's name first; one command at most makes sense. Arguments with one
/// hyphen, and what follows them, are Qt's and left alone. Main thread, without an application
/// object.
CommandLine readCommandLine(std::span<char* const> arguments);

} // namespace velmora

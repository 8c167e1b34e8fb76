#pragma once

#include <QString>

/// What this process inherits from whoever started it, and hands on to what it starts.
namespace velmora::Environment {

/// Makes good what may be missing. Call first of all.
/// - A standard stream that is closed becomes /dev/null: else the next file or connection opened
///   would take its number, and the log would be written into it.
/// - A log whose reader has gone does not end the process.
/// - HOME, where empty, is that of the password database, as after a login: Qt would take the root
///   folder for it, and commands would have none.
void repair();

/// Makes it what every command is to inherit. Call once, with the application object, while no
/// other thread reads the environment.
/// - The folder of the private helper commands (Bundle::helperPath()) comes last on PATH: a command
///   of the system by the same name goes before. It is there once, after a relaunch, too.
/// - Tokens for the start of this program alone are gone.
void prepareForCommands();

/// The folder of the user's configuration files. A relative XDG_CONFIG_HOME is none, by the XDG
/// Base Directory Specification.
QString configurationFolder();

} // namespace velmora::Environment

#include "platform/x11/synthesis/KeyWatcher.h"

#include "foundation/Bundle.h"

#include <QFile>
#include <array>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <unistd.h>

namespace velmora {
namespace {

/// Starts a program without our descriptors and in a session of its own: what ends our terminal or
/// process group spares it. It is not waited for: its end comes with ours. posix_spawn copies no
/// page tables, so this takes a fraction of a millisecond.
void startDetached(const QByteArray& program, std::string argument) {
    QByteArray name = program;
    std::array<char*, 3> arguments{name.data(), argument.data(), nullptr};

    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDWR, 0);
    ::posix_spawn_file_actions_adddup2(&actions, STDIN_FILENO, STDOUT_FILENO);
    ::posix_spawn_file_actions_adddup2(&actions, STDIN_FILENO, STDERR_FILENO);
    ::posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
    ::posix_spawn_file_actions_addchdir_np(&actions, "/");

    posix_spawnattr_t attributes;
    sigset_t signals;
    ::posix_spawnattr_init(&attributes);
    ::posix_spawnattr_setflags(
        &attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
    ::sigfillset(&signals);
    ::posix_spawnattr_setsigdefault(&attributes, &signals);
    ::sigemptyset(&signals);
    ::posix_spawnattr_setsigmask(&attributes, &signals);
    pid_t process = 0;
    ::posix_spawn(&process, program.constData(), &actions, &attributes, arguments.data(), environ);
    ::posix_spawnattr_destroy(&attributes);
    ::posix_spawn_file_actions_destroy(&actions);
}

} // namespace

KeyWatcher::KeyWatcher(X11Connection& connection)
    : connection_(connection), window_(connection.makeHiddenWindow()) {
    xcb_flush(connection_);
    if (const auto folder = Bundle::helperPath())
        startDetached(QFile::encodeName(*folder) + "/velmora-key-watcher", std::to_string(window_));
}

KeyWatcher::~KeyWatcher() {
    xcb_destroy_window(connection_, window_);
    xcb_flush(connection_);
}

} // namespace velmora

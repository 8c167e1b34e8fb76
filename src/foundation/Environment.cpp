#include "foundation/Environment.h"

#include "foundation/Bundle.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <csignal>
#include <fcntl.h>
#include <pwd.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace velmora::Environment {
namespace {

void openStandardStreams() {
    int descriptor = 0;
    do
        descriptor = ::open("/dev/null", O_RDWR);
    while (descriptor >= 0 && descriptor <= STDERR_FILENO);
    ::close(descriptor);
}

void appendHelperPath() {
    const auto folder = Bundle::helperPath();
    if (!folder)
        return;
    QByteArray path = qgetenv("PATH");
    if (path.isEmpty())
        path = "/usr/local/bin:/usr/bin:/bin";
    const QByteArray helper = QFile::encodeName(*folder);
    if (!path.split(':').contains(helper))
        qputenv("PATH", path + ':' + helper);
}

} // namespace

void repair() {
    openStandardStreams();
    std::signal(SIGPIPE, SIG_IGN);
    const passwd* const user =
        qEnvironmentVariableIsEmpty("HOME") ? ::getpwuid(::getuid()) : nullptr;
    if (user && user->pw_dir)
        qputenv("HOME", QByteArray(user->pw_dir));
}

void prepareForCommands() {
    appendHelperPath();
    for (const char* variable : {"DESKTOP_STARTUP_ID", "XDG_ACTIVATION_TOKEN"})
        qunsetenv(variable);
}

QString configurationFolder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return QDir::isAbsolutePath(folder) ? folder : QDir::homePath() + u"/.config"_s;
}

} // namespace velmora::Environment

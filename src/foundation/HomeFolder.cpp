#include "foundation/HomeFolder.h"

#include <QByteArray>
#include <pwd.h>
#include <unistd.h>

namespace velmora {

void ensureHomeFolder() {
    if (!qEnvironmentVariableIsEmpty("HOME"))
        return;
    const passwd* const user = ::getpwuid(::getuid());
    if (user && user->pw_dir)
        qputenv("HOME", QByteArray(user->pw_dir));
}

} // namespace velmora

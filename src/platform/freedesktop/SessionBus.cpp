#include "platform/freedesktop/SessionBus.h"

#include <QDBusConnection>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {
constexpr char kAddress[] = "DBUS_SESSION_BUS_ADDRESS";
}

bool hasSessionBus() {
    return qEnvironmentVariableIsSet(kAddress) ||
           QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + u"/bus"_s);
}

void startNoSessionBus() {
    if (hasSessionBus())
        return;
    // Qt keeps to the first answer. The programs that are started from here get no such address.
    qputenv(kAddress, "disabled:");
    QDBusConnection::sessionBus();
    qunsetenv(kAddress);
}

} // namespace velmora

#include "platform/freedesktop/SessionBus.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace velmora {

bool hasSessionBus() {
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
           QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + u"/bus"_s);
}

} // namespace velmora

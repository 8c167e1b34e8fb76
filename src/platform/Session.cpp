#include "platform/Session.h"

#include <QtGlobal>

namespace velmora {
namespace {
Session* currentSession = nullptr;
}

Session& Session::current() {
    Q_ASSERT(currentSession);
    return *currentSession;
}

void Session::setCurrent(Session& session) {
    currentSession = &session;
}

} // namespace velmora

#include "platform/session/OpenSession.h"

#include "platform/x11/session/X11Session.h"

namespace velmora {

std::variant<std::unique_ptr<Session>, std::string> openSession() {
    if (auto session = X11Session::open())
        return session;
    return "it needs an X11 display, and none answers.";
}

} // namespace velmora

#include "platform/InputGrants.h"

namespace velmora {

void InputGrant::setState(State state, const QString& reason) {
    if (state == state_ && reason == reason_)
        return;
    state_ = state;
    reason_ = reason;
    // A copy: it may destroy the grant.
    if (const auto handler = onStateChange)
        handler();
}

} // namespace velmora

#include "foundation/ActionMessages.h"

namespace velmora {

ActionMessages& ActionMessages::shared() {
    static auto* instance = new ActionMessages;
    return *instance;
}

void ActionMessages::setHandler(const QString& name, std::function<void()> handler) {
    handlers_.insert(name, std::move(handler));
}

void ActionMessages::send(const QString& name) const {
    // A copy: the handler may replace itself while it runs.
    if (const auto handler = handlers_.value(name))
        handler();
}

} // namespace velmora

#include "platform/EitherTrayHost.h"

namespace velmora {

void EitherTrayHost::observe(std::function<void(bool isThere)> handler) {
    handler_ = std::move(handler);
    first_.observe([this](bool isThere) { report(isFirstThere_, isThere); });
    second_.observe([this](bool isThere) { report(isSecondThere_, isThere); });
}

void EitherTrayHost::report(bool& kind, bool isThere) {
    kind = isThere;
    if (isThere)
        handler_(true);
    else if (!isFirstThere_ && !isSecondThere_)
        handler_(false);
}

} // namespace velmora

#include "platform/EitherTrayHost.h"

#include <utility>

namespace velmora {

void EitherTrayHost::whenThere(std::function<void()> task) {
    task_ = std::move(task);
    const auto runOnce = [this] {
        if (const auto once = std::exchange(task_, nullptr))
            once();
    };
    first_.whenThere(runOnce);
    second_.whenThere(runOnce);
}

} // namespace velmora

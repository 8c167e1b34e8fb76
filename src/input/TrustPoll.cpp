#include "input/TrustPoll.h"

#include "platform/Accessibility.h"

#include <utility>

namespace velmora {

TrustPoll::TrustPoll(Accessibility& accessibility, std::chrono::milliseconds period)
    : accessibility_(accessibility) {
    timer_.setInterval(period);
    timer_.callOnTimeout([this] { ask(); });
}

void TrustPoll::start(std::function<void()> onTrusted) {
    onTrusted_ = std::move(onTrusted);
    if (!timer_.isActive())
        timer_.start();
}

void TrustPoll::ask() {
    if (!accessibility_.isProcessTrusted())
        return;
    timer_.stop();
    std::exchange(onTrusted_, nullptr)();
}

} // namespace velmora

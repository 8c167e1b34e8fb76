#pragma once

#include <algorithm>
#include <chrono>
#include <span>

namespace velmora {

/// How long to wait before asking again for something that was refused. Knows no clock.
class RetryPauses {
public:
    /// `pauses` by number of refusals; the last one repeats. Never empty; must outlive this object.
    explicit RetryPauses(std::span<const std::chrono::milliseconds> pauses) : pauses_(pauses) {}

    void noteRefusal() { ++refusals_; }
    void reset() { refusals_ = 0; }

    /// Whether the last answer was a refusal.
    bool isFailing() const { return refusals_ > 0; }
    /// The pause before the next try; none before the first.
    std::chrono::milliseconds next() const {
        return isFailing() ? pauses_[std::min(refusals_, pauses_.size()) - 1]
                           : std::chrono::milliseconds(0);
    }

private:
    std::span<const std::chrono::milliseconds> pauses_;
    std::size_t refusals_ = 0;
};

} // namespace velmora

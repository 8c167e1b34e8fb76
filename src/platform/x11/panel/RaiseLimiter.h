#pragma once

#include <chrono>
#include <optional>

namespace velmora {

/// Keeps two windows that both want to be on top from raising themselves in turn for ever: raises
/// in quick succession wait longer and longer, and after a calm the next one is prompt again. Looks
/// at the stack keep a short distance. Pure; times come from any one monotonic clock.
class RaiseLimiter {
public:
    using Time = std::chrono::milliseconds;

    /// How long from `now` the next look, and the raise that it may lead to, must wait.
    Time delay(Time now) const;

    /// Notes a look made at `now`.
    void looked(Time now) { lastLook_ = now; }

    /// Notes a raise made at `now`.
    void raised(Time now);

private:
    std::optional<Time> lastLook_;
    std::optional<Time> lastRaise_;
    Time interval_{};
};

} // namespace velmora

#pragma once

#include <chrono>
#include <optional>

namespace velmora {

/// Keeps two windows that both want to be on top from raising themselves in turn for ever: raises
/// in quick succession wait longer and longer, and after a calm the next one is prompt again. Pure;
/// times come from any one monotonic clock.
class RaiseLimiter {
public:
    using Time = std::chrono::milliseconds;

    /// How long from `now` the next raise must wait; zero when it may be made.
    Time delay(Time now) const;

    /// Notes a raise made at `now`.
    void raised(Time now);

private:
    std::optional<Time> last_;
    Time interval_{};
};

} // namespace velmora

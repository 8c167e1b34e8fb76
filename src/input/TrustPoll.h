#pragma once

#include <QTimer>
#include <chrono>
#include <functional>

namespace velmora {

class Accessibility;

/// Waits until the process may observe input, asking once a period and without telling the user.
/// Nothing runs before start() and after the first yes; destroying it ends the wait. Main thread
/// only.
class TrustPoll {
public:
    static constexpr std::chrono::milliseconds defaultPeriod{1000};

    /// `accessibility` outlives the poll.
    explicit TrustPoll(
        Accessibility& accessibility, std::chrono::milliseconds period = defaultPeriod);

    /// Calls `onTrusted` once, when an answer is yes. While already waiting it only replaces what
    /// is called.
    void start(std::function<void()> onTrusted);

private:
    void ask();

    Accessibility& accessibility_;
    std::function<void()> onTrusted_;
    QTimer timer_;
};

} // namespace velmora

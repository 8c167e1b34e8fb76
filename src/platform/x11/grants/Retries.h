#pragma once

#include <QString>
#include <QTimer>
#include <chrono>
#include <functional>
#include <span>

namespace velmora {

/// Asks again for what another program holds, after pauses that grow, until it is there. No timer
/// runs otherwise. Two lines in the log: when it starts to fail and when it works again.
class Retries {
public:
    using Pauses = std::span<const std::chrono::milliseconds>;

    /// For what another program may keep as long as it runs: it may just be about to end, or start
    /// anew; then every 2 s for a while, then every 10 s.
    static constexpr std::chrono::milliseconds usualPauses[] = {
        std::chrono::milliseconds(100), std::chrono::seconds(2), std::chrono::seconds(2),
        std::chrono::seconds(2),        std::chrono::seconds(2), std::chrono::seconds(10)};

    /// `pauses` by number of refusals; the last one repeats. `again` tries once more, and may
    /// destroy this object.
    Retries(Pauses pauses, const std::function<void()>& again);

    /// The try was refused; `name` is what was asked for, as the user calls it, at the start of a
    /// line.
    void noteRefusal(const QString& name);
    void noteSuccess();
    /// It is not wanted, or not to be had, for now.
    void stop();

private:
    const Pauses pauses_;
    std::size_t refusals_ = 0; ///< since the last success
    QString refusedName_;
    QTimer timer_;
};

} // namespace velmora

#pragma once

#include "platform/EventTap.h"

#include <chrono>
#include <functional>
#include <span>

namespace velmora {

/// What one tap has taken of the session's input. Every grab is asynchronous: whatever this process
/// does, the user's input is never frozen. Destroying it gives everything back.
class X11Grab {
public:
    /// Where a grab hands what happens.
    struct Sink {
        /// An event for the handler. May destroy the grab: nothing of it is used afterwards.
        std::function<void(const TapEvent&)> event;
        /// The keyboard changed: call obtain() again.
        std::function<void()> changed;
    };

    virtual ~X11Grab() = default;

    /// Takes what is wanted and not held yet, and lets go of what is no longer wanted. False when
    /// another client holds some of it; the rest is kept. Waits for the server.
    virtual bool obtain() = 0;

    /// Takes over a new interest of the same kind; obtain() comes next. False when it is of another
    /// kind.
    virtual bool adopt(const EventTapInterest& interest) = 0;

    /// What was refused, as the user calls it, at the start of a line. Asked for at each refusal.
    virtual QString refusedName() const = 0;

    /// The pauses between tries, by number of refusals.
    virtual std::span<const std::chrono::milliseconds> pauses() const = 0;

    /// For what another program may keep as long as it runs: it may just be about to end, or start
    /// anew; then every 2 s for a while, then every 10 s.
    static constexpr std::chrono::milliseconds usualPauses[] = {
        std::chrono::milliseconds(100), std::chrono::seconds(2), std::chrono::seconds(2),
        std::chrono::seconds(2),        std::chrono::seconds(2), std::chrono::seconds(10)};

    /// Whether a refusal only means waiting, without telling the handler.
    virtual bool waitsForItsTurn() const { return false; }
};

} // namespace velmora

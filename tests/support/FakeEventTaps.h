#pragma once

#include "platform/EventTap.h"

#include <QCoreApplication>
#include <QTimer>
#include <algorithm>
#include <utility>
#include <vector>

namespace velmora::test {

/// A session in memory: taps get what the test sends, as far as they asked for it. Refusals are
/// reported in the next turn of the event loop; retries happen only when the test says so.
class FakeEventTaps final : public EventTaps {
public:
    /// A tap that lives now.
    struct Tap final : EventTap {
        ~Tap() override { std::erase(session->taps, this); }

        void setEnabled(bool on) override {
            if (on == enabled)
                return;
            enabled = on;
            granted = on && !std::exchange(refusedBefore, false) && session->ask(*this);
            if (!on)
                refusedBefore = false;
        }
        bool isEnabled() const override { return enabled; }
        void setInterest(EventTapInterest newInterest) override {
            interest = std::move(newInterest);
        }

        FakeEventTaps* session = nullptr;
        EventTapLocation location{};
        EventTapPlacement placement{};
        EventTapOptions options{};
        std::uint64_t eventsOfInterest = 0;
        EventTapInterest interest;
        Handler handler;
        bool enabled = false;
        bool granted = false; ///< enabled and not refused: events come
        bool refusedBefore = false;
        QObject context; ///< ends pending reports with the tap
    };

    /// The live taps, oldest first.
    std::vector<Tap*> taps;
    /// False lets create() fail.
    bool allowsTaps = true;
    /// What went past all taps to the application in front, in order.
    QList<TapEvent> passedOn;
    /// How often a tap was refused.
    int refusals = 0;

    /// The test's key events carry the position itself.
    KeyCode keyCode(std::uint32_t nativeScanCode) const override {
        return static_cast<KeyCode>(nativeScanCode);
    }

    std::unique_ptr<EventTap> create(
        EventTapLocation location, EventTapPlacement placement, EventTapOptions options,
        std::uint64_t eventsOfInterest, EventTapInterest interest, Handler handler) override {
        if (!allowsTaps)
            return nullptr;
        auto tap = std::make_unique<Tap>();
        tap->session = this;
        tap->location = location;
        tap->placement = placement;
        tap->options = options;
        tap->eventsOfInterest = eventsOfInterest;
        tap->interest = std::move(interest);
        tap->handler = std::move(handler);
        taps.push_back(tap.get());
        return tap;
    }

    /// Another program takes, or lets go of, whatever taps ask for from now on. Letting go grants
    /// the taps that are enabled.
    void setHeldElsewhere(bool held) {
        heldElsewhere_ = held;
        if (!held)
            retry();
    }

    /// Asks again for every enabled tap that was not granted, as a session does after a pause.
    void retry() {
        for (Tap* tap : std::vector(taps)) {
            if (tap->enabled && !tap->granted)
                tap->granted = ask(*tap);
        }
    }

    /// Switches `tap` off as a session does on its own, and tells its handler so.
    void disable(Tap& tap, EventType reason) {
        tap.enabled = tap.granted = false;
        const Handler handler = tap.handler;
        handler(reason, TapEvent{.type = reason});
    }

    /// The user does something: true when a tap swallowed it. The newest granted tap that wants it
    /// decides; without one, or when the handler returns it, it is passed on.
    bool send(const TapEvent& event) {
        for (auto tap = taps.rbegin(); tap != taps.rend(); ++tap) {
            if (!(*tap)->granted || !wants(**tap, event))
                continue;
            // Every key of the session is taken, releases too, though no handler hears of those.
            if (!((*tap)->eventsOfInterest & eventMaskBit(event.type)))
                return true;
            // A copy: the handler may destroy its tap.
            const Handler handler = (*tap)->handler;
            const std::optional<TapEvent> returned = handler(event.type, event);
            if (returned)
                passedOn.append(*returned);
            return !returned;
        }
        passedOn.append(event);
        return false;
    }

    bool sendKey(KeyCode keyCode, EventFlags flags = 0, const QString& characters = {}) {
        return send(
            {.type = EventType::keyDown,
             .keyCode = keyCode,
             .flags = flags,
             .charactersIgnoringModifiers = characters});
    }
    bool sendFlags(EventFlags flags) {
        return send({.type = EventType::flagsChanged, .flags = flags});
    }
    bool sendButton(std::int64_t buttonNumber) {
        return send({.type = EventType::otherMouseDown, .buttonNumber = buttonNumber});
    }

private:
    bool ask(Tap& tap) {
        if (!heldElsewhere_)
            return true;
        ++refusals;
        // A tap for every key waits by itself; the others are switched off.
        if (std::holds_alternative<TapInterest::EveryKey>(tap.interest))
            return false;
        tap.enabled = false;
        QTimer::singleShot(0, &tap.context, [this, &tap] {
            tap.refusedBefore = true;
            disable(tap, EventType::tapDisabledByUserInput);
        });
        return false;
    }

    static bool wants(const Tap& tap, const TapEvent& event) {
        const bool asked = tap.eventsOfInterest & eventMaskBit(event.type);
        if (const auto* chord = std::get_if<TapInterest::Chord>(&tap.interest))
            return asked && event.type == EventType::keyDown && event.keyCode == chord->keyCode &&
                   (event.flags & chord->requiredFlags) == chord->requiredFlags;
        if (const auto* buttons = std::get_if<TapInterest::MouseButtons>(&tap.interest))
            return asked && event.type == EventType::otherMouseDown && event.buttonNumber >= 2 &&
                   buttons->buttonNumbers.contains(event.buttonNumber);
        return event.type == EventType::keyDown || event.type == EventType::keyUp ||
               event.type == EventType::flagsChanged;
    }

    bool heldElsewhere_ = false;
};

} // namespace velmora::test

#pragma once

#include "platform/EventTap.h"

#include <QList>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace velmora::test {

/// A session in memory: taps get what the test sends, as far as they asked for it.
class FakeEventTaps final : public EventTaps {
public:
    /// A tap that lives now.
    struct Tap final : EventTap {
        ~Tap() override { std::erase(session->taps, this); }

        void setEnabled(bool on) override { enabled = on; }
        bool isEnabled() const override { return enabled; }
        void setInterest(EventTapInterest newInterest) override {
            interest = std::move(newInterest);
        }

        FakeEventTaps* session = nullptr;
        std::uint64_t eventsOfInterest = 0;
        EventTapInterest interest;
        Handler handler;
        bool enabled = false;
    };

    /// The live taps, oldest first.
    std::vector<Tap*> taps;
    /// False lets create() fail.
    bool allowsTaps = true;
    /// What went past all taps to the application in front, in order.
    QList<TapEvent> passedOn;

    /// The test's key events carry the position itself.
    KeyCode keyCode(std::uint32_t nativeScanCode) const override {
        return static_cast<KeyCode>(nativeScanCode);
    }

    std::unique_ptr<EventTap> create(
        EventTapLocation location, EventTapPlacement placement, EventTapOptions options,
        std::uint64_t eventsOfInterest, EventTapInterest interest, Handler handler) override {
        EXPECT_EQ(location, EventTapLocation::sessionEventTap);
        EXPECT_EQ(placement, EventTapPlacement::headInsert);
        EXPECT_EQ(options, EventTapOptions::defaultTap);
        if (!allowsTaps)
            return nullptr;
        auto tap = std::make_unique<Tap>();
        tap->session = this;
        tap->eventsOfInterest = eventsOfInterest;
        tap->interest = std::move(interest);
        tap->handler = std::move(handler);
        taps.push_back(tap.get());
        return tap;
    }

    /// Switches `tap` off as a session does on its own, and tells its handler so.
    void disable(Tap& tap, EventType reason) {
        tap.enabled = false;
        const Handler handler = tap.handler;
        handler(reason, TapEvent{.type = reason});
    }

    /// The user does something: true when a tap swallowed it. The newest enabled tap that wants it
    /// decides; without one, or when the handler returns it, it is passed on.
    bool send(const TapEvent& event) {
        for (auto tap = taps.rbegin(); tap != taps.rend(); ++tap) {
            if (!(*tap)->enabled || !wants(**tap, event))
                continue;
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
    static bool wants(const Tap& tap, const TapEvent& event) {
        if (!(tap.eventsOfInterest & eventMaskBit(event.type)))
            return false;
        if (const auto* chord = std::get_if<TapInterest::Chord>(&tap.interest))
            return event.type == EventType::keyDown && event.keyCode == chord->keyCode &&
                   (event.flags & chord->requiredFlags) == chord->requiredFlags;
        if (const auto* buttons = std::get_if<TapInterest::MouseButtons>(&tap.interest))
            return event.type == EventType::otherMouseDown && event.buttonNumber >= 2 &&
                   buttons->buttonNumbers.contains(event.buttonNumber);
        return event.type == EventType::keyDown || event.type == EventType::flagsChanged;
    }
};

} // namespace velmora::test

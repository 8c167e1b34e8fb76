#pragma once

#include "platform/EventTap.h"

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

    /// The user does something: true when the newest enabled tap for such events swallowed it. Taps
    /// get more than they are interested in, as they may in a session.
    bool send(const TapEvent& event) {
        for (auto tap = taps.rbegin(); tap != taps.rend(); ++tap) {
            if (!(*tap)->enabled || !((*tap)->eventsOfInterest & eventMaskBit(event.type)))
                continue;
            // A copy: the handler may destroy its tap.
            const Handler handler = (*tap)->handler;
            return !handler(event.type, event);
        }
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
};

} // namespace velmora::test

#pragma once

#include "platform/KeyboardEvents.h"
#include "platform/x11/session/X11Session.h"

#include <gtest/gtest.h>
#include <memory>

namespace velmora::test {

/// A session's keyboard events, as the program has them.
struct Service {
    /// Those of a running session, or of `fake`.
    explicit Service(KeyboardEvents* fake = nullptr)
        : session(fake ? nullptr : X11Session::open()),
          events(fake ? *fake : session->keyboardEvents()) {}

    std::unique_ptr<X11Session> session;
    KeyboardEvents& events;
    std::unique_ptr<EventSource> source =
        events.createEventSource(EventSourceState::combinedSessionState);

    bool post(KeyCode code, bool keyDown, EventFlags flags) {
        auto event = events.createKeyboardEvent(*source, code, keyDown);
        if (!event)
            return false;
        event->setFlags(flags);
        events.post(*event);
        return true;
    }
    void tap(KeyCode code, EventFlags flags) {
        EXPECT_TRUE(post(code, true, flags));
        EXPECT_TRUE(post(code, false, flags));
    }
};

/// The modifiers that event flags stand for, as X numbers them.
constexpr uint16_t maskOf(EventFlags flags) {
    return static_cast<uint16_t>(
        (flags & kCGEventFlagMaskShift ? 1 : 0) | (flags & kCGEventFlagMaskControl ? 4 : 0) |
        (flags & kCGEventFlagMaskAlternate ? 8 : 0) | (flags & kCGEventFlagMaskCommand ? 64 : 0));
}

} // namespace velmora::test

#pragma once

#include "platform/EventFlags.h"

#include <memory>
#include <optional>

namespace velmora {

/// The state an event source starts from.
enum class EventSourceState { combinedSessionState = 0 };

/// A handle to create keyboard events with. Destroying it releases what it holds.
class EventSource {
public:
    virtual ~EventSource() = default;
};

/// A press or a release of the key at a position.
struct KeyboardEvent {
    KeyCode keyCode = 0;
    bool keyDown = false;
    EventFlags flags = 0;

    /// CGEventSetFlags: replaces all modifier flags.
    void setFlags(EventFlags newFlags) { flags = newFlags; }
};

/// Synthesis of keyboard events (CGEventSourceCreate, CGEventCreateKeyboardEvent, CGEventPost).
class KeyboardEvents {
public:
    virtual ~KeyboardEvents() = default;

    /// Makes ready what the first key needs, so that it is as quick as later ones, and lets go of
    /// the keys that an earlier process left down when it was killed between a press and its
    /// release. Call once at start, when nothing more urgent is left to do.
    virtual void prepare() = 0;

    /// An event source, or nothing when the session cannot synthesise keys.
    virtual std::unique_ptr<EventSource> createEventSource(EventSourceState state) = 0;

    /// An event for the key at `keyCode`, or nothing when no such key exists on this keyboard. Set
    /// its flags: those it starts with are the session's choice.
    virtual std::optional<KeyboardEvent>
    createKeyboardEvent(EventSource& source, KeyCode keyCode, bool keyDown) = 0;

    /// Injects `event`: the application with keyboard focus sees the key with exactly the event's
    /// flags as modifiers, whatever the user holds or has locked, and the user's own modifiers are
    /// as before when this returns. Sent to the session before this returns.
    virtual void post(const KeyboardEvent& event) = 0;
};

} // namespace velmora

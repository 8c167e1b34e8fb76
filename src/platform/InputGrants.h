#pragma once

#include "platform/EventFlags.h"

#include <QString>
#include <functional>
#include <memory>

class QWidget;

namespace velmora {

/// A key that went down somewhere in the session, or a change of the modifiers held. The release of
/// other keys is not told.
struct KeyInput {
    enum class Kind { keyDown, flagsChanged };
    Kind kind = Kind::keyDown;
    KeyCode keyCode = kNoKeyCode; ///< by position; kNoKeyCode for a key at no known position
    EventFlags flags = 0;         ///< with flagsChanged those held after it
    /// What the key types with modifiers but Shift ignored; its usual label when it types nothing.
    QString charactersIgnoringModifiers{};
    /// A key went down just now: no repeat of one that is held and, with flagsChanged, no release.
    bool isFresh = true;
};

/// Presses of the key at a position while at least `requiredFlags` are held.
struct Chord {
    KeyCode keyCode = 0;
    EventFlags requiredFlags = 0;
    bool operator==(const Chord&) const = default;
};

/// What a session can do with the input that it grants.
struct InputProperties {
    bool swallows;        ///< no other program gets the press; else it is only reported
    bool passesReleaseOn; ///< the release goes where it goes without the grant
    bool marksRepeats;    ///< KeyInput::isFresh is known
    bool isByPosition;    ///< a key is known by its place, whatever the layout types there
};

/// A piece of the session's input that this program has asked for. Destroying it gives everything
/// back at once. What it loses, or another program holds, it gets by itself as soon as it can be
/// had. Main thread only.
class InputGrant {
public:
    enum class State {
        granted,
        pending, ///< another program holds it just now
        refused, ///< cannot be had as the session or the keyboard is
    };

    virtual ~InputGrant() = default;
    InputGrant(const InputGrant&) = delete;
    InputGrant& operator=(const InputGrant&) = delete;

    State state() const { return state_; }
    /// Why it is not granted, in the user's language: the session's layer translates it. Empty
    /// while granted.
    const QString& reason() const { return reason_; }
    const InputProperties& properties() const { return properties_; }

    /// Called after each change of state; the first state is known as soon as the grant is there.
    /// May destroy the grant.
    std::function<void()> onStateChange;

protected:
    explicit InputGrant(const InputProperties& properties) : properties_(properties) {}

    /// Call last: the grant may be gone afterwards.
    void setState(State state, const QString& reason = {});

private:
    const InputProperties properties_;
    State state_ = State::pending;
    QString reason_;
};

/// Gives what the program wants of the session's input; nothing else is ever taken. Handlers run on
/// the main thread, return quickly and may destroy their grant. A grant is there in any case: its
/// state tells whether it is granted. At most one grant at a time for the same key or button.
class InputGrants {
public:
    using KeyHandler = std::function<void(const KeyInput& key)>;

    virtual ~InputGrants() = default;

    /// The presses of a chord and its repeats, in any application; `pressed` gets no characters.
    virtual std::unique_ptr<InputGrant> hotKey(const Chord& chord, KeyHandler pressed) = 0;

    /// The presses of a mouse button: 2 middle, 3 fourth, 4 fifth, … Left (0) and right (1) are
    /// refused.
    virtual std::unique_ptr<InputGrant>
    mouseButton(std::int64_t number, std::function<void()> pressed) = 0;

    /// Every key of the session, before any other program and any hot key. `view` has the keyboard
    /// focus.
    virtual std::unique_ptr<InputGrant> everyKey(QWidget& view, KeyHandler handler) = 0;

    /// The position of the key that a window's key event names by `nativeScanCode`; kNoKeyCode for
    /// a key at no known position. For keys that a window of ours holds and no grant gets.
    virtual KeyCode keyCode(std::uint32_t nativeScanCode) const = 0;
};

} // namespace velmora

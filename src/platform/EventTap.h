#pragma once

#include "platform/EventFlags.h"
#include "platform/KeyboardEvents.h"

#include <QList>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <variant>

namespace velmora {

/// What happened, numbered as in AppKit.
enum class EventType : std::uint32_t {
    keyDown = 10,
    flagsChanged = 12,
    otherMouseDown = 25,
    tapDisabledByTimeout = 0xFFFFFFFE,
    tapDisabledByUserInput = 0xFFFFFFFF, ///< another client holds what the tap wants
};

/// Whether the session says with `type` that it switched a tap off.
constexpr bool isTapDisabled(EventType type) {
    return type == EventType::tapDisabledByTimeout || type == EventType::tapDisabledByUserInput;
}

/// The bit of `type` in an event mask.
constexpr std::uint64_t eventMaskBit(EventType type) {
    return std::uint64_t(1) << static_cast<std::uint32_t>(type);
}

/// An event of the session as a tap's handler sees it.
struct TapEvent {
    EventType type{};
    KeyCode keyCode = 0;
    EventFlags flags = 0;
    std::int64_t buttonNumber = 0; ///< 2 middle, 3 fourth, 4 fifth, …
    /// What the key types with modifiers but Shift ignored; its usual label when it types nothing.
    QString charactersIgnoringModifiers{};
    /// A key went down just now: no repeat of one that is held and, with flagsChanged, no release.
    bool isFresh = true;
};

/// Where a tap is inserted among the existing ones.
enum class EventTapPlacement { headInsert = 0 };
/// Whether a tap may drop events.
enum class EventTapOptions { defaultTap = 0 };

/// The events a tap wants of those in its mask; all others never reach it. A session may grant this
/// at once, later or not at all.
namespace TapInterest {
/// Presses of the key at a position while at least `requiredFlags` are held.
struct Chord {
    KeyCode keyCode = 0;
    EventFlags requiredFlags = 0;
};
/// Presses of these buttons; 0 and 1 (left and right) are never handed over.
struct MouseButtons {
    QList<std::int64_t> buttonNumbers;
};
/// Every key of the session, for as long as the tap is enabled; `view` has the keyboard focus.
/// While another program holds the keyboard the tap waits for it by itself: that is no refusal and
/// is not reported. Releases are taken too; handlers hear of presses and modifier changes.
struct EveryKey {
    QPointer<QWidget> view;
};
} // namespace TapInterest
using EventTapInterest =
    std::variant<TapInterest::Chord, TapInterest::MouseButtons, TapInterest::EveryKey>;

/// A filter in the session's stream of input events. Destroying it gives everything back at once.
class EventTap {
public:
    virtual ~EventTap() = default;

    /// CGEventTapEnable. A tap starts disabled. When the session refuses what it wants, the tap is
    /// disabled and the handler is told so, tapDisabledByUserInput, in a later turn of the event
    /// loop, after each refusal. Enabling such a tap asks again after a pause that grows with each
    /// refusal.
    virtual void setEnabled(bool enabled) = 0;
    virtual bool isEnabled() const = 0;

    /// Changes what the tap wants, at once.
    virtual void setInterest(EventTapInterest interest) = 0;
};

/// Makes event taps (CGEventTapCreate).
class EventTaps {
public:
    virtual ~EventTaps() = default;

    /// Decides about an event: returns it to pass it on, nothing to swallow it. Runs on the main
    /// thread and must return quickly; it may disable or destroy its tap. A session that hands over
    /// only what a tap wants may have taken the press for good by then, so a handler returns an
    /// event only when its interest has just changed.
    using Handler = std::function<std::optional<TapEvent>(EventType type, const TapEvent& event)>;

    /// A tap for the types in `eventsOfInterest` (eventMaskBit), or nothing when the session does
    /// not allow one.
    virtual std::unique_ptr<EventTap> create(
        EventTapLocation location, EventTapPlacement placement, EventTapOptions options,
        std::uint64_t eventsOfInterest, EventTapInterest interest, Handler handler) = 0;

    /// The position of the key that a window's key event names by `nativeScanCode`; kNoKeyCode for
    /// a key at no known position. For keys that a window of ours holds and no tap gets.
    virtual KeyCode keyCode(std::uint32_t nativeScanCode) const = 0;
};

} // namespace velmora

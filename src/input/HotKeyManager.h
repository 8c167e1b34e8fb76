#pragma once

#include "input/TrustPoll.h"
#include "overlay/OverlayController.h"
#include "platform/EventTap.h"

#include <QObject>
#include <QPointer>
#include <memory>
#include <optional>

class QKeyEvent;

namespace velmora {

/// Makes Option+M show and hide the bar whatever application is in front; that application never
/// sees the press. The match is by position, so the layout does not matter, and other modifiers may
/// be held as well. Main thread only.
class HotKeyManager : public QObject {
    Q_OBJECT
public:
    /// The process-wide manager over the session's services, made on first use, never destroyed.
    static HotKeyManager& shared();

    /// The services outlive the manager. `retryPeriod` is the time between two looks for the
    /// permission while it is missing.
    HotKeyManager(
        EventTaps& eventTaps, Accessibility& accessibility,
        std::chrono::milliseconds retryPeriod = TrustPoll::defaultPeriod);

    /// What the hot key toggles; not kept alive by this.
    QPointer<OverlayController> overlayController;

    /// Starts watching, as soon as the process is trusted. When the session then allows no tap, the
    /// hot key stays inactive.
    void setupHotKeys();
    /// Ends watching.
    void cleanup();

    /// Toggles when `event` is the hot key, and says whether it was. For a menu of ours, which
    /// holds the keyboard while it is open, so that no tap gets the key.
    bool performKeyEquivalent(const QKeyEvent& event);

private:
    static constexpr KeyCode keyCodeM = 46; ///< the position of M on the ANSI keyboard

    static bool matches(KeyCode keyCode, EventFlags flags);
    void submitToggle();
    std::optional<TapEvent> handleEvent(EventType type, const TapEvent& event);

    EventTaps& eventTaps_;
    Accessibility& accessibility_;
    std::unique_ptr<EventTap> eventTap_;
    TrustPoll trustPoll_;
};

} // namespace velmora

#pragma once

#include "input/TrustPoll.h"
#include "overlay/OverlayController.h"
#include "platform/InputGrants.h"

#include <QObject>
#include <QPointer>
#include <memory>

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
        InputGrants& inputGrants, Accessibility& accessibility,
        std::chrono::milliseconds retryPeriod = TrustPoll::defaultPeriod);

    /// What the hot key toggles; not kept alive by this.
    QPointer<OverlayController> overlayController;

    /// Starts watching, as soon as the process is trusted. While the session does not grant the hot
    /// key, it stays inactive.
    void setupHotKeys();
    /// Ends watching.
    void cleanup();

    /// Toggles when `event` is the hot key, and says whether it was. For a menu of ours, which
    /// holds the keyboard while it is open, so that no grant gets the key.
    bool performKeyEquivalent(const QKeyEvent& event);

private:
    static constexpr KeyCode keyCodeM = 46; ///< the position of M on the ANSI keyboard
    static constexpr Chord optionM{keyCodeM, kCGEventFlagMaskAlternate};

    void handleEvent();

    InputGrants& inputGrants_;
    Accessibility& accessibility_;
    std::unique_ptr<InputGrant> hotKey_;
    TrustPoll trustPoll_;
};

} // namespace velmora

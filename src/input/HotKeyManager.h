#pragma once

#include "input/TrustPoll.h"
#include "model/Preferences.h"
#include "overlay/OverlayController.h"
#include "platform/InputGrants.h"

#include <QObject>
#include <QPointer>
#include <memory>

class QKeyEvent;

namespace velmora {

/// Makes the hot key of the preferences, Option+M at first, show and hide the bar whatever
/// application is in front; that application never sees the press. The match is by position, so the
/// layout does not matter, and other modifiers may be held as well. Main thread only.
class HotKeyManager : public QObject {
    Q_OBJECT
public:
    /// The process-wide manager over the shared preferences and the session's services, made on
    /// first use, never destroyed.
    static HotKeyManager& shared();

    /// What is handed in outlives the manager. `retryPeriod` is the time between two looks for the
    /// permission while it is missing.
    HotKeyManager(
        Preferences& preferences, InputGrants& inputGrants, Accessibility& accessibility,
        std::chrono::milliseconds retryPeriod = TrustPoll::defaultPeriod);

    /// What the hot key toggles; not kept alive by this.
    QPointer<OverlayController> overlayController;

    /// Starts watching, as soon as the process is trusted. While the session does not grant the hot
    /// key, it stays inactive.
    void setupHotKeys();
    /// Ends watching.
    void cleanup();

    /// Why the hot key does not work just now, in the user's language; empty while it does, and
    /// while nothing is watched.
    const QString& problem() const { return problem_; }

    /// Toggles when `event` is the hot key, and says whether it was. For a menu of ours, which
    /// holds the keyboard while it is open, so that no grant gets the key.
    bool performKeyEquivalent(const QKeyEvent& event);

Q_SIGNALS:
    void problemChanged();

private:
    void followPreferences();
    void handleEvent();
    void setProblem(const QString& problem);

    Preferences& preferences_;
    InputGrants& inputGrants_;
    Accessibility& accessibility_;
    Chord chord_; ///< what hotKey_ is for
    std::unique_ptr<InputGrant> hotKey_;
    QString problem_;
    TrustPoll trustPoll_;
};

} // namespace velmora

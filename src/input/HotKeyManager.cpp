#include "input/HotKeyManager.h"

#include "actions/KeyNames.h"
#include "foundation/LocalizedString.h"
#include "foundation/MainQueue.h"
#include "input/WindowKeyEvent.h"
#include "platform/Accessibility.h"
#include "platform/Session.h"

#include <QKeyEvent>

namespace velmora {
namespace {

Chord chordOf(const HotKey& hotKey) {
    Chord chord{hotKey.keyCode, 0};
    for (const QString& modifier : hotKey.modifiers)
        chord.requiredFlags |= KeyNames::modifierFlag(modifier).value_or(0);
    return chord;
}

} // namespace

HotKeyManager& HotKeyManager::shared() {
    static auto* instance = new HotKeyManager(
        Preferences::shared(), Session::current().inputGrants(),
        Session::current().accessibility());
    return *instance;
}

HotKeyManager::HotKeyManager(
    Preferences& preferences, InputGrants& inputGrants, Accessibility& accessibility,
    std::chrono::milliseconds retryPeriod)
    : preferences_(preferences),
      inputGrants_(inputGrants),
      accessibility_(accessibility),
      trustPoll_(accessibility, retryPeriod) {
    connect(&preferences_, &Preferences::changed, this, &HotKeyManager::followPreferences);
}

void HotKeyManager::setupHotKeys() {
    if (!accessibility_.isProcessTrustedWithPrompt()) {
        setProblem(localizedString("grant_not_offered"));
        trustPoll_.start([this] { setupHotKeys(); });
        return;
    }
    // An earlier grant goes first: two for the same chord would contend for it.
    hotKey_.reset();
    // Repeats are not filtered.
    chord_ = chordOf(preferences_.hotKey());
    hotKey_ = inputGrants_.hotKey(chord_, [this](const KeyInput&) { handleEvent(); });
    hotKey_->onStateChange = [this] { setProblem(hotKey_->reason()); };
    setProblem(hotKey_->reason());
}

void HotKeyManager::followPreferences() {
    if (hotKey_ && chordOf(preferences_.hotKey()) != chord_)
        setupHotKeys();
}

void HotKeyManager::cleanup() {
    hotKey_.reset();
    setProblem({});
}

void HotKeyManager::setProblem(const QString& problem) {
    if (problem == problem_)
        return;
    problem_ = problem;
    Q_EMIT problemChanged();
}

bool HotKeyManager::performKeyEquivalent(const QKeyEvent& event) {
    const auto key = windowKeyEvent(event);
    const bool isHotKey = key && (key->flags & chord_.requiredFlags) == chord_.requiredFlags &&
                          inputGrants_.keyCode(event.nativeScanCode()) == chord_.keyCode;
    if (!hotKey_ || !isHotKey)
        return false;
    handleEvent();
    return true;
}

void HotKeyManager::handleEvent() {
    // Not at once: the session waits for its handlers.
    MainQueue::submit([self = QPointer(this)] {
        if (self && self->overlayController)
            self->overlayController->toggleOverlay();
    });
}

} // namespace velmora

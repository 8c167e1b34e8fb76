#include "input/HotKeyManager.h"

#include "foundation/MainQueue.h"
#include "platform/Accessibility.h"
#include "platform/Session.h"

#include <QKeyEvent>

namespace velmora {

HotKeyManager& HotKeyManager::shared() {
    static auto* instance =
        new HotKeyManager(Session::current().inputGrants(), Session::current().accessibility());
    return *instance;
}

HotKeyManager::HotKeyManager(
    InputGrants& inputGrants, Accessibility& accessibility, std::chrono::milliseconds retryPeriod)
    : inputGrants_(inputGrants),
      accessibility_(accessibility),
      trustPoll_(accessibility, retryPeriod) {}

void HotKeyManager::setupHotKeys() {
    if (!accessibility_.isProcessTrustedWithPrompt()) {
        trustPoll_.start([this] { setupHotKeys(); });
        return;
    }
    // An earlier grant goes first: two for the same chord would contend for it.
    cleanup();
    // Repeats are not filtered.
    hotKey_ = inputGrants_.hotKey(optionM, [this](const KeyInput&) { handleEvent(); });
}

void HotKeyManager::cleanup() {
    hotKey_.reset();
}

bool HotKeyManager::performKeyEquivalent(const QKeyEvent& event) {
    const bool isHotKey = event.modifiers().testFlag(Qt::AltModifier) &&
                          inputGrants_.keyCode(event.nativeScanCode()) == keyCodeM;
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

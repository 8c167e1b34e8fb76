#include "input/HotKeyManager.h"

#include "foundation/MainQueue.h"
#include "platform/Accessibility.h"
#include "platform/Platform.h"

#include <QKeyEvent>

namespace velmora {

HotKeyManager& HotKeyManager::shared() {
    static auto* instance =
        new HotKeyManager(Platform::current().eventTaps, Platform::current().accessibility);
    return *instance;
}

HotKeyManager::HotKeyManager(
    EventTaps& eventTaps, Accessibility& accessibility, std::chrono::milliseconds retryPeriod)
    : eventTaps_(eventTaps),
      accessibility_(accessibility),
      trustPoll_(accessibility, retryPeriod) {}

void HotKeyManager::setupHotKeys() {
    if (!accessibility_.isProcessTrustedWithPrompt()) {
        trustPoll_.start([this] { setupHotKeys(); });
        return;
    }
    // An earlier tap goes first: two for the same chord would contend for it.
    cleanup();
    eventTap_ = eventTaps_.create(
        EventTapLocation::sessionEventTap, EventTapPlacement::headInsert,
        EventTapOptions::defaultTap, eventMaskBit(EventType::keyDown),
        TapInterest::Chord{.keyCode = keyCodeM, .requiredFlags = kCGEventFlagMaskAlternate},
        [this](EventType type, const TapEvent& event) { return handleEvent(type, event); });
    if (eventTap_)
        eventTap_->setEnabled(true);
}

void HotKeyManager::cleanup() {
    eventTap_.reset();
}

std::optional<TapEvent> HotKeyManager::handleEvent(EventType type, const TapEvent& event) {
    if (isTapDisabled(type)) {
        if (eventTap_)
            eventTap_->setEnabled(true);
        return event;
    }
    if (type != EventType::keyDown || !matches(event.keyCode, event.flags))
        return event;
    // Repeats are not filtered.
    submitToggle();
    return std::nullopt;
}

bool HotKeyManager::performKeyEquivalent(const QKeyEvent& event) {
    const EventFlags flags =
        event.modifiers().testFlag(Qt::AltModifier) ? kCGEventFlagMaskAlternate : 0;
    if (!eventTap_ || !matches(eventTaps_.keyCode(event.nativeScanCode()), flags))
        return false;
    submitToggle();
    return true;
}

bool HotKeyManager::matches(KeyCode keyCode, EventFlags flags) {
    return keyCode == keyCodeM && (flags & kCGEventFlagMaskAlternate);
}

void HotKeyManager::submitToggle() {
    // Not from within the tap: a slow handler would be switched off.
    MainQueue::submit([self = QPointer(this)] {
        if (self && self->overlayController)
            self->overlayController->toggleOverlay();
    });
}

} // namespace velmora

#include "input/HotKeyManager.h"

#include "foundation/MainQueue.h"
#include "platform/Accessibility.h"
#include "platform/Platform.h"

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
    const bool matches = type == EventType::keyDown && event.keyCode == keyCodeM &&
                         (event.flags & kCGEventFlagMaskAlternate);
    if (!matches)
        return event;
    // Repeats are not filtered. Not from within the tap: a slow handler would be switched off.
    MainQueue::submit([self = QPointer(this)] {
        if (self && self->overlayController)
            self->overlayController->toggleOverlay();
    });
    return std::nullopt;
}

} // namespace velmora

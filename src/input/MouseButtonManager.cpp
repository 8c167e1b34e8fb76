#include "input/MouseButtonManager.h"

#include "actions/ActionEngine.h"
#include "foundation/MainQueue.h"
#include "foundation/UserDefaults.h"
#include "platform/Accessibility.h"
#include "platform/Platform.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace velmora {

MouseButtonManager& MouseButtonManager::shared() {
    static auto* instance = new MouseButtonManager(
        UserDefaults::standard(), Platform::current().eventTaps, Platform::current().accessibility,
        [](const ShortcutAction& action) { ActionEngine::shared().execute(action); });
    return *instance;
}

MouseButtonManager::MouseButtonManager(
    UserDefaults& defaults, EventTaps& eventTaps, Accessibility& accessibility, Execute execute,
    std::chrono::milliseconds retryPeriod)
    : bindings_(
          defaults, u"SavedMouseBindings"_s, readMouseButtonBinding,
          [this] { Q_EMIT bindingsWillChange(); }),
      eventTaps_(eventTaps),
      accessibility_(accessibility),
      execute_(std::move(execute)),
      trustPoll_(accessibility, retryPeriod) {}

void MouseButtonManager::startMonitoring() {
    if (eventTap_)
        return;
    if (!accessibility_.isProcessTrustedWithPrompt()) {
        trustPoll_.start([this] { startMonitoring(); });
        return;
    }
    eventTap_ = eventTaps_.create(
        EventTapLocation::sessionEventTap, EventTapPlacement::headInsert,
        EventTapOptions::defaultTap, eventMaskBit(EventType::otherMouseDown), boundButtons(),
        [this](EventType type, const TapEvent& event) { return handleMouseEvent(type, event); });
    if (eventTap_)
        eventTap_->setEnabled(true);
}

void MouseButtonManager::stopMonitoring() {
    eventTap_.reset();
}

std::optional<TapEvent>
MouseButtonManager::handleMouseEvent(EventType type, const TapEvent& event) {
    if (isTapDisabled(type)) {
        if (eventTap_)
            eventTap_->setEnabled(true);
        return event;
    }
    if (type != EventType::otherMouseDown)
        return event;
    const auto binding =
        std::ranges::find(bindings(), event.buttonNumber, &MouseButtonBinding::buttonNumber);
    if (binding == bindings().cend())
        return event;
    // A copy: the binding may be edited or removed before its turn comes.
    MainQueue::submit([execute = execute_, action = binding->action] { execute(action); });
    return std::nullopt;
}

void MouseButtonManager::addBinding(const MouseButtonBinding& binding) {
    const auto same =
        std::ranges::find(bindings(), binding.buttonNumber, &MouseButtonBinding::buttonNumber);
    if (same == bindings().cend())
        bindings_.append(binding);
    else
        bindings_.replace(same - bindings().cbegin(), binding);
    watchBoundButtons();
}

void MouseButtonManager::removeBinding(qsizetype index) {
    bindings_.remove(index);
    watchBoundButtons();
}

void MouseButtonManager::updateBinding(qsizetype index, const MouseButtonBinding& binding) {
    bindings_.replace(index, binding);
    watchBoundButtons();
}

void MouseButtonManager::watchBoundButtons() {
    if (eventTap_)
        eventTap_->setInterest(boundButtons());
}

TapInterest::MouseButtons MouseButtonManager::boundButtons() const {
    TapInterest::MouseButtons wanted;
    for (const MouseButtonBinding& binding : bindings()) {
        const bool isExtraButton = binding.buttonNumber >= 2;
        if (isExtraButton && !wanted.buttonNumbers.contains(binding.buttonNumber))
            wanted.buttonNumbers.append(binding.buttonNumber);
    }
    return wanted;
}

} // namespace velmora

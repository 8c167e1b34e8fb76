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
    : storage_(defaults, u"SavedMouseBindings"_s, readMouseButtonBinding),
      eventTaps_(eventTaps),
      accessibility_(accessibility),
      execute_(std::move(execute)),
      trustPoll_(accessibility, retryPeriod) {
    loadBindings();
}

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
        std::ranges::find(bindings_, event.buttonNumber, &MouseButtonBinding::buttonNumber);
    if (binding == bindings_.cend())
        return event;
    // A copy: the binding may be edited or removed before its turn comes.
    MainQueue::submit([execute = execute_, action = binding->action] { execute(action); });
    return std::nullopt;
}

void MouseButtonManager::addBinding(const MouseButtonBinding& binding) {
    QList<MouseButtonBinding> bindings = bindings_;
    const auto same =
        std::ranges::find(bindings, binding.buttonNumber, &MouseButtonBinding::buttonNumber);
    if (same == bindings.end())
        bindings.append(binding);
    else
        *same = binding;
    setBindings(std::move(bindings));
    saveBindings();
}

void MouseButtonManager::removeBinding(qsizetype index) {
    if (index < 0 || index >= bindings_.size())
        return;
    QList<MouseButtonBinding> bindings = bindings_;
    bindings.removeAt(index);
    setBindings(std::move(bindings));
    saveBindings();
}

void MouseButtonManager::updateBinding(qsizetype index, const MouseButtonBinding& binding) {
    if (index < 0 || index >= bindings_.size())
        return;
    QList<MouseButtonBinding> bindings = bindings_;
    bindings.replace(index, binding);
    setBindings(std::move(bindings));
    saveBindings();
}

void MouseButtonManager::saveBindings() {
    storage_.save(bindings_);
}

void MouseButtonManager::loadBindings() {
    if (auto stored = storage_.load())
        setBindings(*std::move(stored));
}

void MouseButtonManager::setBindings(QList<MouseButtonBinding> bindings) {
    Q_EMIT bindingsWillChange();
    bindings_ = std::move(bindings);
    if (eventTap_)
        eventTap_->setInterest(boundButtons());
}

TapInterest::MouseButtons MouseButtonManager::boundButtons() const {
    TapInterest::MouseButtons wanted;
    for (const MouseButtonBinding& binding : bindings_) {
        const bool isExtraButton = binding.buttonNumber >= 2;
        if (isExtraButton && !wanted.buttonNumbers.contains(binding.buttonNumber))
            wanted.buttonNumbers.append(binding.buttonNumber);
    }
    return wanted;
}

} // namespace velmora

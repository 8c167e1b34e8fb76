#include "input/MouseButtonManager.h"

#include "actions/ActionEngine.h"
#include "foundation/MainQueue.h"
#include "foundation/UserDefaults.h"
#include "platform/Accessibility.h"
#include "platform/Session.h"

#include <algorithm>
#include <set>
#include <utility>

using namespace Qt::StringLiterals;

namespace velmora {

MouseButtonManager& MouseButtonManager::shared() {
    static auto* instance = new MouseButtonManager(
        UserDefaults::standard(), EditHistory::shared(), Session::current().inputGrants(),
        Session::current().accessibility(),
        [](const ShortcutAction& action) { ActionEngine::shared().execute(action); });
    return *instance;
}

MouseButtonManager::MouseButtonManager(
    UserDefaults& defaults, EditHistory& history, InputGrants& inputGrants,
    Accessibility& accessibility, Execute execute, std::chrono::milliseconds retryPeriod)
    : bindings_(
          defaults, history, MouseButtonBinding::userDefaultsKey, readMouseButtonBinding,
          [this] { Q_EMIT bindingsWillChange(); }, [this] { watchBoundButtons(); }),
      inputGrants_(inputGrants),
      accessibility_(accessibility),
      execute_(std::move(execute)),
      trustPoll_(accessibility, retryPeriod) {}

void MouseButtonManager::startMonitoring() {
    if (isMonitoring_)
        return;
    if (!accessibility_.isProcessTrustedWithPrompt()) {
        trustPoll_.start([this] { startMonitoring(); });
        return;
    }
    isMonitoring_ = true;
    watchBoundButtons();
}

void MouseButtonManager::stopMonitoring() {
    isMonitoring_ = false;
    grants_.clear();
}

void MouseButtonManager::handleMouseEvent(std::int64_t buttonNumber) {
    const auto binding =
        std::ranges::find(bindings(), buttonNumber, &MouseButtonBinding::buttonNumber);
    if (binding == bindings().cend())
        return;
    // A copy: the binding may be edited or removed before its turn comes.
    MainQueue::submit([execute = execute_, action = binding->action] { execute(action); });
}

void MouseButtonManager::addBinding(const MouseButtonBinding& binding) {
    const auto same =
        std::ranges::find(bindings(), binding.buttonNumber, &MouseButtonBinding::buttonNumber);
    if (same == bindings().cend())
        bindings_.append(binding);
    else
        bindings_.replace(same - bindings().cbegin(), binding);
}

void MouseButtonManager::removeBinding(qsizetype index) {
    bindings_.remove(index);
}

void MouseButtonManager::updateBinding(qsizetype index, const MouseButtonBinding& binding) {
    bindings_.replace(index, binding);
}

void MouseButtonManager::replaceBindings(
    const QList<MouseButtonBinding>& bindings, const QString& name) {
    bindings_.replaceAll(bindings, name);
}

void MouseButtonManager::watchBoundButtons() {
    if (!isMonitoring_)
        return;
    std::set<std::int64_t> bound;
    for (const MouseButtonBinding& binding : bindings()) {
        const bool isExtraButton = binding.buttonNumber >= 2;
        if (isExtraButton)
            bound.insert(binding.buttonNumber);
    }
    // A button that stays bound keeps its grant: none of its presses is lost.
    std::erase_if(grants_, [&](const auto& grant) { return !bound.contains(grant.first); });
    for (const std::int64_t number : bound) {
        if (!grants_.contains(number))
            grants_[number] =
                inputGrants_.mouseButton(number, [this, number] { handleMouseEvent(number); });
    }
}

} // namespace velmora

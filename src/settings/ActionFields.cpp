#include "settings/ActionFields.h"

#include "foundation/LocalizedString.h"

namespace velmora {

QString localizedName(ActionType type) {
    constexpr const char* keys[actionTypeCount] = {
        "action_launch_app", "action_open_url", "action_execute_shell", "action_press_key"};
    return localizedString(keys[static_cast<int>(type)]);
}

ActionFields::ActionFields(const ShortcutAction& action)
    : type(static_cast<ActionType>(action.index())) {
    if (const auto* launch = std::get_if<LaunchApp>(&action)) {
        appName = launch->name;
        bundleId = launch->bundleId.value_or(QString());
    } else if (const auto* open = std::get_if<OpenUrl>(&action)) {
        url = open->url;
    } else if (const auto* execute = std::get_if<ExecuteShellCommand>(&action)) {
        shellCommand = execute->command;
    } else if (const auto* press = std::get_if<PressKeyCombo>(&action)) {
        keyModifiers = press->modifiers;
        keyValue = press->key;
    }
}

bool ActionFields::isComplete() const {
    switch (type) {
    case ActionType::launchApp:
        return !appName.isEmpty();
    case ActionType::openURL:
        return !url.isEmpty();
    case ActionType::executeShell:
        return !shellCommand.isEmpty();
    case ActionType::pressKey:
        return !keyModifiers.isEmpty() || !keyValue.isEmpty();
    }
    Q_UNREACHABLE();
}

ShortcutAction ActionFields::action() const {
    switch (type) {
    case ActionType::launchApp:
        return LaunchApp{appName, bundleId.isEmpty() ? std::nullopt : std::optional(bundleId)};
    case ActionType::openURL:
        return OpenUrl{url};
    case ActionType::executeShell:
        return ExecuteShellCommand{shellCommand};
    case ActionType::pressKey:
        return PressKeyCombo{keyModifiers, keyValue};
    }
    Q_UNREACHABLE();
}

} // namespace velmora

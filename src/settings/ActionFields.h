#pragma once

#include "model/ShortcutAction.h"

#include <QString>
#include <QStringList>

namespace velmora {

/// What an editor's action picker offers, in its order.
enum class ActionType { launchApp, openURL, executeShell, pressKey };
inline constexpr int actionTypeCount = 4;

QString localizedName(ActionType type);

/// The fields of an action form. Those of the types not chosen are kept but do not reach the
/// action.
struct ActionFields {
    ActionType type = ActionType::launchApp;
    QString appName;
    QString bundleId; ///< empty for none
    QString url;
    QString shellCommand;
    QStringList keyModifiers;
    QString keyValue;

    ActionFields() = default;
    /// Sets the type and the fields of that type.
    explicit ActionFields(const ShortcutAction& action);

    /// Whether the chosen type has what it needs, judged on the text exactly as typed.
    bool isComplete() const;
    ShortcutAction action() const;
};

} // namespace velmora

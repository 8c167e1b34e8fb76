#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <variant>

namespace velmora {

/// Launch an application, known by display name and, where known, its bundle identifier.
struct LaunchApp {
    QString name;
    std::optional<QString> bundleId;
    bool operator==(const LaunchApp&) const = default;
};

/// Open a URL given as text; it is not parsed or validated here.
struct OpenUrl {
    QString url;
    bool operator==(const OpenUrl&) const = default;
};

/// Run one shell command line.
struct ExecuteShellCommand {
    QString command;
    bool operator==(const ExecuteShellCommand&) const = default;
};

/// Type a key combination. The names are those of KeyNames.
struct PressKeyCombo {
    QStringList modifiers; ///< ordered; the order counts for equality
    QString key;
    bool operator==(const PressKeyCombo&) const = default;
};

/// What a button or a mouse binding does. The index of the alternative is the case tag, 0 to 3.
using ShortcutAction = std::variant<LaunchApp, OpenUrl, ExecuteShellCommand, PressKeyCombo>;

/// Agrees with equality.
size_t qHash(const ShortcutAction& action, size_t seed = 0) noexcept;

/// Modifiers in the words of this platform's keyboards: "Super" for Command. Names that no
/// modifier has stay as they are.
QStringList modifierWords(const QStringList& modifiers);

/// One localized line that describes the action to the user.
QString displayName(const ShortcutAction& action);

} // namespace velmora

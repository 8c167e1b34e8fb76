#include "model/ShortcutAction.h"

#include "foundation/LocalizedString.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

size_t hashOf(const LaunchApp& action, size_t seed) noexcept {
    return qHashMulti(
        seed, action.name, action.bundleId.has_value(), action.bundleId.value_or(QString()));
}

size_t hashOf(const OpenUrl& action, size_t seed) noexcept {
    return qHash(action.url, seed);
}

size_t hashOf(const ExecuteShellCommand& action, size_t seed) noexcept {
    return qHash(action.command, seed);
}

size_t hashOf(const PressKeyCombo& action, size_t seed) noexcept {
    return qHashMulti(seed, action.modifiers, action.key);
}

QString described(const LaunchApp& action) {
    return localizedString("action_desc_launch").arg(action.name);
}

QString described(const OpenUrl& action) {
    return localizedString("action_desc_open").arg(action.url);
}

QString described(const ExecuteShellCommand& action) {
    return localizedString("action_desc_execute").arg(action.command);
}

QString described(const PressKeyCombo& action) {
    const QString combination = (modifierWords(action.modifiers) << action.key).join(u'+');
    return localizedString("action_desc_key").arg(combination);
}

} // namespace

size_t qHash(const ShortcutAction& action, size_t seed) noexcept {
    const auto hash = [seed](const auto& alternative) { return hashOf(alternative, seed); };
    return qHashMulti(seed, action.index(), std::visit(hash, action));
}

QStringList modifierWords(const QStringList& modifiers) {
    static const QHash<QString, QString> words{
        {u"Command"_s, u"Super"_s}, {u"Option"_s, u"Alt"_s}, {u"Control"_s, u"Ctrl"_s}};
    QStringList result;
    for (const QString& modifier : modifiers)
        result.append(words.value(modifier, modifier));
    return result;
}

QString displayName(const ShortcutAction& action) {
    return std::visit([](const auto& alternative) { return described(alternative); }, action);
}

} // namespace velmora

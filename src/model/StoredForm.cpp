#include "model/StoredForm.h"

#include <array>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// The cases' names in tag order.
constexpr std::array caseNames = {
    "launchApp"_L1, "openURL"_L1, "executeShellCommand"_L1, "pressKeyCombo"_L1};
static_assert(caseNames.size() == std::variant_size_v<ShortcutAction>);

QJsonObject associatedValues(const LaunchApp& action) {
    QJsonObject values{{u"name"_s, action.name}};
    if (action.bundleId)
        values.insert("bundleId"_L1, *action.bundleId);
    return values;
}

QJsonObject associatedValues(const OpenUrl& action) {
    return {{u"url"_s, action.url}};
}

QJsonObject associatedValues(const ExecuteShellCommand& action) {
    return {{u"command"_s, action.command}};
}

QJsonObject associatedValues(const PressKeyCombo& action) {
    return {{u"modifiers"_s, QJsonArray::fromStringList(action.modifiers)}, {u"key"_s, action.key}};
}

ShortcutAction readAssociatedValues(QLatin1StringView caseName, const JsonReader& values) {
    if (caseName == "launchApp"_L1) {
        LaunchApp action{values.member("name"_L1).string(), std::nullopt};
        if (values.has("bundleId"_L1))
            action.bundleId = values.member("bundleId"_L1).string();
        return action;
    }
    if (caseName == "openURL"_L1)
        return OpenUrl{values.member("url"_L1).string()};
    if (caseName == "executeShellCommand"_L1)
        return ExecuteShellCommand{values.member("command"_L1).string()};
    const auto readString = [](const JsonReader& element) { return element.string(); };
    return PressKeyCombo{
        values.member("modifiers"_L1).list(readString), values.member("key"_L1).string()};
}

ButtonAlignment readAlignment(const JsonReader& alignment) {
    const QString text = alignment.string();
    const auto value = buttonAlignment(text);
    if (!value)
        alignment.fail(
            DecodingError::Kind::dataCorrupted, u"\"%1\" is not an alignment."_s.arg(text));
    return *value;
}

} // namespace

QString encoded(const QUuid& id) {
    return id.toString(QUuid::WithoutBraces).toUpper();
}

QJsonObject encoded(const ShortcutAction& action) {
    const auto values = [](const auto& alternative) { return associatedValues(alternative); };
    return {{caseNames.at(action.index()), std::visit(values, action)}};
}

QJsonObject encoded(const ShortcutButton& button) {
    return {
        {u"id"_s, encoded(button.id())},
        {u"title"_s, button.title},
        {u"icon"_s, button.icon},
        {u"action"_s, encoded(button.action)},
        {u"alignment"_s, rawValue(button.alignment)}};
}

ShortcutAction readAction(const JsonReader& action) {
    const QJsonObject object = action.object();
    QLatin1StringView found;
    qsizetype count = 0;
    for (const QLatin1StringView name : caseNames) {
        if (object.contains(name)) {
            found = name;
            ++count;
        }
    }
    if (count != 1)
        action.fail(
            DecodingError::Kind::typeMismatch, u"Invalid number of keys found, expected one."_s);
    return readAssociatedValues(found, action.member(found));
}

ShortcutButton readButton(const JsonReader& button) {
    const QUuid id = button.member("id"_L1).uuid();
    const QString title = button.member("title"_L1).string();
    const QString icon = button.member("icon"_L1).string();
    const ShortcutAction action = readAction(button.member("action"_L1));
    return {title, icon, action, readAlignment(button.member("alignment"_L1)), id};
}

} // namespace velmora

#include "model/StoredForm.h"

#include <array>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// The cases' names in tag order.
constexpr std::array caseNames = {
    "launchApp"_L1, "openURL"_L1, "executeShellCommand"_L1, "pressKeyCombo"_L1};
static_assert(caseNames.size() == std::variant_size_v<ShortcutAction>);

void writeMember(JsonWriter& writer, QLatin1StringView name, const QString& value) {
    writer.member(name);
    writer.string(value);
}

void writeValues(JsonWriter& writer, const LaunchApp& action) {
    writeMember(writer, "name"_L1, action.name);
    if (action.bundleId)
        writeMember(writer, "bundleId"_L1, *action.bundleId);
}

void writeValues(JsonWriter& writer, const OpenUrl& action) {
    writeMember(writer, "url"_L1, action.url);
}

void writeValues(JsonWriter& writer, const ExecuteShellCommand& action) {
    writeMember(writer, "command"_L1, action.command);
}

void writeValues(JsonWriter& writer, const PressKeyCombo& action) {
    writer.member("modifiers"_L1);
    writer.beginArray();
    for (const QString& modifier : action.modifiers)
        writer.string(modifier);
    writer.endArray();
    writeMember(writer, "key"_L1, action.key);
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

void write(JsonWriter& writer, const QUuid& id) {
    writer.string(id.toString(QUuid::WithoutBraces).toUpper());
}

void write(JsonWriter& writer, const ShortcutAction& action) {
    writer.beginObject();
    writer.member(caseNames.at(action.index()));
    writer.beginObject();
    std::visit([&](const auto& alternative) { writeValues(writer, alternative); }, action);
    writer.endObject();
    writer.endObject();
}

void write(JsonWriter& writer, const ShortcutButton& button) {
    writer.beginObject();
    writer.member("id"_L1);
    write(writer, button.id());
    writeMember(writer, "title"_L1, button.title);
    writeMember(writer, "icon"_L1, button.icon);
    writer.member("action"_L1);
    write(writer, button.action);
    writeMember(writer, "alignment"_L1, rawValue(button.alignment));
    writer.endObject();
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

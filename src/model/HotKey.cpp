#include "model/HotKey.h"

#include "model/ShortcutAction.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// Codes of positions are below it, as AppKit numbers them.
constexpr std::int64_t keyCodeLimit = 128;

} // namespace

bool HotKey::isUsable() const {
    const QStringList reserving{u"Command"_s, u"Option"_s, u"Control"_s};
    return keyCode < keyCodeLimit && std::ranges::any_of(modifiers, [&](const QString& modifier) {
               return reserving.contains(modifier);
           });
}

QString HotKey::name() const {
    return (modifierWords(modifiers) << key).join(u'+');
}

void write(JsonWriter& writer, const HotKey& hotKey) {
    writer.beginObject();
    writer.member("modifiers"_L1);
    writer.beginArray();
    for (const QString& modifier : hotKey.modifiers)
        writer.string(modifier);
    writer.endArray();
    writer.member("keyCode"_L1);
    writer.integer(hotKey.keyCode);
    writer.member("key"_L1);
    writer.string(hotKey.key);
    writer.endObject();
}

HotKey readHotKey(const JsonReader& hotKey) {
    const auto readString = [](const JsonReader& element) { return element.string(); };
    const JsonReader code = hotKey.member("keyCode"_L1);
    const std::int64_t keyCode = code.integer();
    if (keyCode < 0 || keyCode >= keyCodeLimit)
        code.fail(DecodingError::Kind::dataCorrupted, u"There is no key %1."_s.arg(keyCode));
    const HotKey read{
        hotKey.member("modifiers"_L1).list(readString), static_cast<std::uint16_t>(keyCode),
        hotKey.member("key"_L1).string()};
    if (!read.isUsable())
        hotKey.fail(
            DecodingError::Kind::dataCorrupted, u"A hot key needs Command, Option or Control."_s);
    return read;
}

} // namespace velmora

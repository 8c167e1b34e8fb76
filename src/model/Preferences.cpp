#include "model/Preferences.h"

#include "foundation/UserDefaults.h"
#include "model/StoredList.h"

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

// What is not stored is false.
const QString kBarAtTopEdge = u"barAtTopEdge"_s;
const QString kWindowsBehindBar = u"windowsBehindBar"_s;
const QString hotKeyKey = u"hotKey"_s;

} // namespace

Preferences& Preferences::shared() {
    static auto* const instance = new Preferences(UserDefaults::standard());
    return *instance;
}

HotKey Preferences::hotKey() const {
    const auto stored = defaults_.data(hotKeyKey);
    if (!stored)
        return {};
    try {
        return readHotKey(JsonReader(parsedJson(*stored)));
    } catch (const DecodingError& error) {
        keepAside(defaults_, hotKeyKey, *stored, &error);
        return {};
    }
}

void Preferences::setHotKey(const HotKey& hotKey) {
    if (!hotKey.isUsable() || hotKey == this->hotKey())
        return;
    JsonWriter writer;
    write(writer, hotKey);
    defaults_.setData(hotKeyKey, writer.text());
    Q_EMIT changed();
}

bool Preferences::barAtTopEdge() const {
    return defaults_.boolean(kBarAtTopEdge);
}

void Preferences::setBarAtTopEdge(bool atTopEdge) {
    set(kBarAtTopEdge, atTopEdge);
}

bool Preferences::keepsWindowsBelow() const {
    return !defaults_.boolean(kWindowsBehindBar);
}

void Preferences::setKeepsWindowsBelow(bool keeps) {
    set(kWindowsBehindBar, !keeps);
}

PreferenceValues Preferences::values() const {
    return {hotKey(), barAtTopEdge(), keepsWindowsBelow()};
}

void Preferences::take(const PreferenceValues& values) {
    setHotKey(values.hotKey.value_or(hotKey()));
    setBarAtTopEdge(values.barAtTopEdge.value_or(barAtTopEdge()));
    setKeepsWindowsBelow(values.keepsWindowsBelow.value_or(keepsWindowsBelow()));
}

void Preferences::set(const QString& key, bool value) {
    if (defaults_.boolean(key) == value)
        return;
    defaults_.setBoolean(key, value);
    Q_EMIT changed();
}

} // namespace velmora

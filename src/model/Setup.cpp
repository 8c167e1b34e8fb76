#include "model/Setup.h"

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr std::int64_t version = 1;
/// Of each list. A bar of so many is past all use, and takes a second to be made.
constexpr qsizetype mostRecords = 10'000;

template<typename Record>
QByteArray lines(const QList<Record>& records) {
    QByteArrayList written;
    for (const Record& record : records) {
        JsonWriter writer;
        write(writer, record);
        written << writer.text();
    }
    return written.isEmpty() ? "[]"_ba : "[\n" + written.join(",\n") + "\n]";
}

template<typename Record>
QList<Record> readList(const JsonReader& list, Record (*readRecord)(const JsonReader& record)) {
    if (const qsizetype count = list.array().size(); count > mostRecords)
        list.fail(
            DecodingError::Kind::dataCorrupted,
            u"There are %1 entries, more than %2."_s.arg(count).arg(mostRecords));
    return list.list(readRecord);
}

void write(JsonWriter& writer, const PreferenceValues& values) {
    writer.beginObject();
    if (values.hotKey) {
        writer.member("hotKey"_L1);
        write(writer, *values.hotKey);
    }
    for (const auto& [name, value] :
         {std::pair("barAtTopEdge"_L1, values.barAtTopEdge),
          {"keepsWindowsBelow"_L1, values.keepsWindowsBelow}}) {
        if (value) {
            writer.member(name);
            writer.boolean(*value);
        }
    }
    writer.endObject();
}

PreferenceValues readPreferences(const JsonReader& preferences) {
    preferences.object();
    PreferenceValues values;
    if (preferences.has("hotKey"_L1))
        values.hotKey = readHotKey(preferences.member("hotKey"_L1));
    if (preferences.has("barAtTopEdge"_L1))
        values.barAtTopEdge = preferences.member("barAtTopEdge"_L1).boolean();
    if (preferences.has("keepsWindowsBelow"_L1))
        values.keepsWindowsBelow = preferences.member("keepsWindowsBelow"_L1).boolean();
    return values;
}

Setup readSetup(const JsonReader& setup) {
    const JsonReader number = setup.member("version"_L1);
    if (const std::int64_t found = number.integer(); found != version)
        number.fail(
            DecodingError::Kind::dataCorrupted,
            u"It is %1, and this Velmora reads version %2 only."_s.arg(found).arg(version));
    return {
        readList(setup.member("buttons"_L1), readButton),
        readList(setup.member("mouseBindings"_L1), readMouseButtonBinding),
        readPreferences(setup.member("preferences"_L1))};
}

} // namespace

QByteArray encodedSetup(const Setup& setup) {
    JsonWriter preferences;
    write(preferences, setup.preferences);
    return "{\"version\":" + QByteArray::number(qlonglong(version)) +
           ",\n\"buttons\":" + lines(setup.buttons) +
           ",\n\"mouseBindings\":" + lines(setup.mouseBindings) +
           ",\n\"preferences\":" + preferences.text() + "}\n";
}

Decoded<Setup> decodedSetup(const QByteArray& json) {
    try {
        return readSetup(JsonReader(parsedJson(json)));
    } catch (const DecodingError& error) {
        return error;
    }
}

} // namespace velmora

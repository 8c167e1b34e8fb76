#pragma once

#include "model/JsonReader.h"
#include "model/JsonWriter.h"
#include "model/ShortcutButton.h"

#include <QByteArray>
#include <variant>

/// The stored JSON form of actions and of lists of records. Pure functions of the value; a failure
/// to read is reported, never replaced by a default.
namespace velmora {

/// A value or the error that kept it from being read.
template<typename T>
using Decoded = std::variant<T, DecodingError>;

/// The canonical text, upper-case.
void write(JsonWriter& writer, const QUuid& id);
void write(JsonWriter& writer, const ShortcutAction& action);
void write(JsonWriter& writer, const ShortcutButton& button);

/// UTF-8 text of the array of records, compact. A record type brings its own write().
template<typename Record>
QByteArray encodedList(const QList<Record>& records) {
    JsonWriter writer;
    writer.beginArray();
    for (const Record& record : records)
        write(writer, record);
    writer.endArray();
    return writer.text();
}

/// For record readers: these throw a DecodingError.
ShortcutAction readAction(const JsonReader& action);
ShortcutButton readButton(const JsonReader& button);

/// Reads a whole text as an array of records; one that does not read fails the list.
template<typename Record>
Decoded<QList<Record>>
decodedList(const QByteArray& json, Record (*readRecord)(const JsonReader& record)) {
    try {
        return JsonReader(parsedJson(json)).list(readRecord);
    } catch (const DecodingError& error) {
        return error;
    }
}

} // namespace velmora

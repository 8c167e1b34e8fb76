#include "model/JsonWriter.h"

#include <cstdio>

namespace velmora {
namespace {

void appendEscaped(QByteArray& text, char16_t unit) {
    char escape[8];
    text.append(escape, std::snprintf(escape, sizeof escape, "\\u%04x", unsigned{unit}));
}

void appendUtf8(QByteArray& text, const QByteArray& utf8) {
    for (const char byte : utf8) {
        if (static_cast<unsigned char>(byte) < 0x20) {
            appendEscaped(text, static_cast<unsigned char>(byte));
            continue;
        }
        if (byte == '"' || byte == '\\')
            text += '\\';
        text += byte;
    }
}

} // namespace

void JsonWriter::member(QLatin1StringView name) {
    separate();
    text_.append('"').append(name.data(), name.size()).append("\":");
}

void JsonWriter::integer(std::int64_t integer) {
    separate();
    text_ += QByteArray::number(static_cast<qlonglong>(integer));
}

void JsonWriter::boolean(bool boolean) {
    separate();
    text_ += boolean ? "true" : "false";
}

void JsonWriter::string(QStringView string) {
    separate();
    text_ += '"';
    if (string.isValidUtf16()) {
        appendUtf8(text_, string.toUtf8());
    } else {
        // UTF-8 has no form for an unpaired surrogate; JSON's escapes have one for every unit.
        for (const QChar unit : string) {
            if (unit.isSurrogate())
                appendEscaped(text_, unit.unicode());
            else
                appendUtf8(text_, QStringView(&unit, 1).toUtf8());
        }
    }
    text_ += '"';
}

void JsonWriter::begin(char bracket) {
    separate();
    text_ += bracket;
}

void JsonWriter::separate() {
    if (!text_.isEmpty() && !QByteArrayView("[{:").contains(text_.back()))
        text_ += ',';
}

} // namespace velmora

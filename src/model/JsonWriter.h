#pragma once

#include <QByteArray>
#include <QLatin1StringView>
#include <QStringView>
#include <cstdint>

namespace velmora {

/// Compact JSON text in UTF-8, written front to back in the order of the calls. The document
/// classes would take some ten allocations a string, which a save of 1,000 records feels.
class JsonWriter {
public:
    void beginObject() { begin('{'); }
    void endObject() { text_ += '}'; }
    void beginArray() { begin('['); }
    void endArray() { text_ += ']'; }
    /// The name of the member whose value is written next: a literal that needs no escapes.
    void member(QLatin1StringView name);
    /// Any string reads back as it was, unpaired surrogates included.
    void string(QStringView string);
    void integer(std::int64_t integer);
    void boolean(bool boolean);

    const QByteArray& text() const { return text_; }

private:
    void begin(char bracket);
    void separate();

    QByteArray text_;
};

} // namespace velmora

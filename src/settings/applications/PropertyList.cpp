#include "settings/applications/PropertyList.h"

#include <QXmlStreamReader>
#include <QtEndian>
#include <optional>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// Characters of a value. A list of a few bytes can name one long text any number of times.
constexpr qsizetype longestValue = 4096;

/// The values wanted, as they are found. What is found once is not decoded again.
class Wanted {
public:
    explicit Wanted(const QStringList& keys) : missing_(keys) {}

    QHash<QString, QString> strings;

    bool isComplete() const { return missing_.isEmpty(); }
    bool contains(const QString& key) const { return missing_.contains(key); }
    qsizetype longestKey() const {
        qsizetype longest = 0;
        for (const QString& key : missing_)
            longest = qMax(longest, key.size());
        return longest;
    }
    void found(const QString& key, const std::optional<QString>& value) {
        missing_.removeOne(key);
        if (value && value->size() <= longestValue)
            strings.insert(key, *value);
    }

private:
    QStringList missing_;
};

/// Whether a tag is longer than a property list's ever is: the reader below compares each attribute
/// of a tag with each other one.
bool hasLongTag(const QByteArray& data) {
    constexpr qsizetype longestTag = 1024;
    for (qsizetype i = data.indexOf('<'); i >= 0; i = data.indexOf('<', i + 1)) {
        const qsizetype end = data.indexOf('>', i);
        if (data.mid(i, 2) != "<!" && (end < 0 ? data.size() : end) - i > longestTag)
            return true;
    }
    return false;
}

void readXml(const QByteArray& data, Wanted& wanted) {
    if (hasLongTag(data))
        return;
    QXmlStreamReader reader(data);
    if (!reader.readNextStartElement() || reader.name() != "plist"_L1 ||
        !reader.readNextStartElement() || reader.name() != "dict"_L1)
        return;
    QString key;
    while (!wanted.isComplete() && reader.readNextStartElement()) {
        if (reader.name() == "key"_L1) {
            key = reader.readElementText();
        } else if (!wanted.contains(key)) {
            reader.skipCurrentElement();
        } else if (reader.name() == "string"_L1) {
            wanted.found(key, reader.readElementText());
        } else {
            wanted.found(key, {});
            reader.skipCurrentElement();
        }
    }
    if (reader.hasError())
        wanted.strings.clear();
}

/// A binary property list: objects, a table of their offsets, and a trailer of 32 bytes that says
/// where the table is. Every position is checked before it is read.
class BinaryPropertyList {
public:
    explicit BinaryPropertyList(const QByteArray& data) : data_(data) {}

    void read(Wanted& wanted) const {
        constexpr qsizetype trailerSize = 32;
        if (data_.size() < trailerSize)
            return;
        const qsizetype trailer = data_.size() - trailerSize;
        const auto offsetSize = number(trailer + 6, 1);
        const auto referenceSize = number(trailer + 7, 1);
        const auto count = number(trailer + 8, 8);
        const auto top = number(trailer + 16, 8);
        const auto table = number(trailer + 24, 8);
        if (!offsetSize || !referenceSize || !count || !top || !table)
            return;
        const auto offset = [&](qsizetype object) -> std::optional<qsizetype> {
            if (object < 0 || object >= *count || *table > data_.size())
                return {};
            return number(*table + object * *offsetSize, *offsetSize);
        };
        const auto dictionary = header(offset(*top), 0xd);
        if (!dictionary || dictionary->count > data_.size())
            return;
        const auto reference = [&](qsizetype index) -> std::optional<qsizetype> {
            const auto object = number(dictionary->start + index * *referenceSize, *referenceSize);
            return object ? offset(*object) : std::nullopt;
        };
        const qsizetype longestKey = wanted.longestKey();
        for (qsizetype i = 0; i < dictionary->count && !wanted.isComplete(); ++i) {
            const auto key = string(reference(i), longestKey);
            if (key && wanted.contains(*key))
                wanted.found(*key, string(reference(dictionary->count + i), longestValue));
        }
    }

private:
    /// Where an object's content starts, and its count.
    struct Header {
        qsizetype start;
        qsizetype count;
    };

    /// The big-endian number of `size` bytes at `position`; nothing when it is outside the data or
    /// larger than a position can be.
    std::optional<qsizetype> number(qsizetype position, qsizetype size) const {
        if (size < 1 || size > 8 || position < 0 || position > data_.size() - size)
            return {};
        quint64 value = 0;
        for (qsizetype i = 0; i < size; ++i)
            value = value << 8 | quint8(data_[position + i]);
        if (value > quint64(std::numeric_limits<qint32>::max()))
            return {};
        return qsizetype(value);
    }

    /// The head of the object at `position` when it is of `type` (the upper half of its first
    /// byte). A count from 15 up stands in an integer object behind it.
    std::optional<Header> header(std::optional<qsizetype> position, int type) const {
        const auto marker = position ? number(*position, 1) : std::nullopt;
        if (!marker || *marker >> 4 != type)
            return {};
        const qsizetype count = *marker & 0xf;
        if (count != 0xf)
            return Header{*position + 1, count};
        const auto integer = number(*position + 1, 1);
        if (!integer || *integer >> 4 != 1)
            return {};
        const qsizetype size = qsizetype(1) << (*integer & 0xf);
        const auto value = number(*position + 2, size);
        if (!value)
            return {};
        return Header{*position + 2 + size, *value};
    }

    /// The text at `position`; nothing when it is longer than `longest`.
    std::optional<QString> string(std::optional<qsizetype> position, qsizetype longest) const {
        if (const auto ascii = header(position, 5)) {
            if (ascii->count > qMin(longest, data_.size() - ascii->start))
                return {};
            return QString::fromLatin1(data_.constData() + ascii->start, ascii->count);
        }
        const auto utf16 = header(position, 6);
        if (!utf16 || utf16->count > qMin(longest, (data_.size() - utf16->start) / 2))
            return {};
        QString text(utf16->count, Qt::Uninitialized);
        qFromBigEndian<char16_t>(data_.constData() + utf16->start, utf16->count, text.data());
        return text;
    }

    const QByteArray& data_;
};

} // namespace

QHash<QString, QString> propertyListStrings(const QByteArray& data, const QStringList& keys) {
    Wanted wanted(keys);
    if (data.startsWith("bplist"))
        BinaryPropertyList(data).read(wanted);
    else
        readXml(data, wanted);
    return wanted.strings;
}

} // namespace velmora

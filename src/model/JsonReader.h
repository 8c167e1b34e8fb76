#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUuid>
#include <cstdint>
#include <type_traits>

namespace velmora {

/// Why stored data does not read.
struct DecodingError {
    enum class Kind {
        typeMismatch,  ///< a value of another type than the one required
        keyNotFound,   ///< a required member is missing
        valueNotFound, ///< null where a value is required
        dataCorrupted, ///< not JSON, or a text that is none of those allowed there
    };
    Kind kind;
    /// Members and indices ("Index 2") from the outermost value to the offending one, a missing
    /// member included.
    QStringList codingPath;
    QString description;
};

/// One value of a JSON text, read by what it is required to be. Each operation throws a
/// DecodingError that carries the value's coding path when the value is something else.
/// A reader refers to the one it came from, which has to outlive it: hence no copies, and no
/// members or elements of a temporary.
class JsonReader {
public:
    /// The outermost value.
    explicit JsonReader(const QJsonValue& value) : value_(value) {}
    JsonReader(const JsonReader&) = delete;
    JsonReader& operator=(const JsonReader&) = delete;

    /// Whether this object has a member of that name which is not null.
    bool has(QLatin1StringView name) const;
    /// A member that this object is required to have. `name` is a literal.
    JsonReader member(QLatin1StringView name) const&;
    JsonReader member(QLatin1StringView name) const&& = delete;

    QJsonObject object() const;
    QJsonArray array() const;
    QString string() const;
    /// A number without a fraction that fits; 3.0 is the integer 3.
    std::int64_t integer() const;
    bool boolean() const;
    /// From the canonical text form: 36 characters, hexadecimal digits of either case.
    QUuid uuid() const;

    /// Every element of this array, each read by `read(const JsonReader&)`.
    template<typename Read>
    auto list(Read read) const {
        const QJsonArray elements = array();
        QList<std::invoke_result_t<Read, const JsonReader&>> result;
        result.reserve(elements.size());
        for (qsizetype index = 0; index < elements.size(); ++index)
            result.append(read(JsonReader(elements.at(index), *this, {}, index)));
        return result;
    }

    [[noreturn]] void fail(DecodingError::Kind kind, const QString& description) const;

private:
    JsonReader(
        const QJsonValue& value, const JsonReader& parent, QLatin1StringView name, qsizetype index)
        : value_(value), parent_(&parent), name_(name), index_(index) {}

    void require(QJsonValue::Type type) const;
    /// Put together only when something fails.
    QStringList codingPath() const;

    QJsonValue value_;
    const JsonReader* parent_ = nullptr;
    QLatin1StringView name_; ///< null for an element
    qsizetype index_ = 0;
};

/// The value of a whole JSON text in UTF-8; throws a DecodingError when it is none.
QJsonValue parsedJson(const QByteArray& json);

} // namespace velmora

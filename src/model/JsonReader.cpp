#include "model/JsonReader.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

QString nameOf(QJsonValue::Type type) {
    switch (type) {
    case QJsonValue::Null:
        return u"null"_s;
    case QJsonValue::Bool:
        return u"a Boolean"_s;
    case QJsonValue::Double:
        return u"a number"_s;
    case QJsonValue::String:
        return u"a string"_s;
    case QJsonValue::Array:
        return u"an array"_s;
    case QJsonValue::Object:
        return u"an object"_s;
    case QJsonValue::Undefined:
        break;
    }
    return u"nothing"_s;
}

} // namespace

bool JsonReader::has(QLatin1StringView name) const {
    const QJsonValue value = object().value(name);
    return !value.isUndefined() && !value.isNull();
}

JsonReader JsonReader::member(QLatin1StringView name) const& {
    const QJsonValue value = object().value(name);
    if (value.isUndefined())
        JsonReader(value, *this, name, 0)
            .fail(
                DecodingError::Kind::keyNotFound, u"The object has no member \"%1\"."_s.arg(name));
    return {value, *this, name, 0};
}

QJsonObject JsonReader::object() const {
    require(QJsonValue::Object);
    return value_.toObject();
}

QJsonArray JsonReader::array() const {
    require(QJsonValue::Array);
    return value_.toArray();
}

QString JsonReader::string() const {
    require(QJsonValue::String);
    return value_.toString();
}

std::int64_t JsonReader::integer() const {
    require(QJsonValue::Double);
    // What is no integer comes back as whatever default is given.
    const qint64 integer = value_.toInteger(0);
    if (integer != value_.toInteger(1))
        fail(
            DecodingError::Kind::dataCorrupted,
            u"%1 is not an integer of 64 bits."_s.arg(value_.toDouble()));
    return integer;
}

bool JsonReader::boolean() const {
    require(QJsonValue::Bool);
    return value_.toBool();
}

QUuid JsonReader::uuid() const {
    const QString text = string();
    const QUuid uuid = QUuid::fromString(text);
    // QUuid also takes braces and trailing characters; only the canonical form comes out as it
    // went in.
    if (uuid.toString(QUuid::WithoutBraces).compare(text, Qt::CaseInsensitive) != 0)
        fail(DecodingError::Kind::dataCorrupted, u"\"%1\" is not a UUID."_s.arg(text));
    return uuid;
}

void JsonReader::fail(DecodingError::Kind kind, const QString& description) const {
    throw DecodingError{kind, codingPath(), description};
}

void JsonReader::require(QJsonValue::Type type) const {
    if (value_.type() == type)
        return;
    const QString description =
        u"Expected %1 but found %2 instead."_s.arg(nameOf(type), nameOf(value_.type()));
    fail(
        value_.isNull() ? DecodingError::Kind::valueNotFound : DecodingError::Kind::typeMismatch,
        description);
}

QStringList JsonReader::codingPath() const {
    if (!parent_)
        return {};
    const QString step = name_.isNull() ? u"Index %1"_s.arg(index_) : QString(name_);
    return parent_->codingPath() << step;
}

QJsonValue parsedJson(const QByteArray& json) {
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        throw DecodingError{
            DecodingError::Kind::dataCorrupted,
            {},
            u"The data is not valid JSON: %1 at offset %2."_s.arg(
                error.errorString(), QString::number(error.offset))};
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

} // namespace velmora

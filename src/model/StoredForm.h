#pragma once

#include "model/ShortcutButton.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>
#include <variant>

/// The stored JSON form of actions and buttons. Pure functions of the value; a failure to read is
/// reported, never replaced by a default.
namespace velmora {

/// Why stored data does not read.
struct DecodingError {
    enum class Kind { typeMismatch, keyNotFound, valueNotFound, dataCorrupted };
    Kind kind;
    /// Members and indices ("Index 2") from the outermost value to the offending one.
    QStringList codingPath;
    QString description;
};

/// A value or the error that kept it from being read.
template<typename T>
using Decoded = std::variant<T, DecodingError>;

QJsonObject encoded(const ShortcutAction& action);
QJsonObject encoded(const ShortcutButton& button);
/// UTF-8 text of the array of buttons, compact.
QByteArray encoded(const QList<ShortcutButton>& buttons);

/// Reads an action object that stands at `codingPath` of the whole text.
Decoded<ShortcutAction> decodedAction(const QJsonValue& value, const QStringList& codingPath);
Decoded<ShortcutButton> decodedButton(const QJsonValue& value, const QStringList& codingPath);
Decoded<QList<ShortcutButton>> decodedButtons(const QByteArray& json);

} // namespace velmora

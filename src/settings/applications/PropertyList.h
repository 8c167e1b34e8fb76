#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

namespace velmora {

/// The string values that the top-level dictionary of a property list, XML or binary, has under
/// `keys`; of several under one key the first. Values of other types, or longer than any name is,
/// are left out. Empty when `data` is neither form, or XML with an error before the last of `keys`.
QHash<QString, QString> propertyListStrings(const QByteArray& data, const QStringList& keys);

} // namespace velmora

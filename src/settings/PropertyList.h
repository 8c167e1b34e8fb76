#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

namespace velmora {

/// The string values of the top-level dictionary of a property list, XML or binary; values of other
/// types are left out. Empty when `data` is neither.
QHash<QString, QString> propertyListStrings(const QByteArray& data);

} // namespace velmora

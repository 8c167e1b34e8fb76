#pragma once

#include "platform/EventFlags.h"

#include <QString>
#include <QStringList>

/// How a pressed key is named, as KeyNames does, and shown.
namespace velmora::CapturedKey {

/// The names of the modifiers in `flags`, Command first; other flags are not read.
QStringList modifierNames(EventFlags flags);

/// Named keys and digits are named by position. Any other is named by `characters`, what it types
/// with modifiers but Shift ignored: upper-cased, empty when it types nothing, and possibly a
/// name that KeyNames does not know.
QString keyName(KeyCode keyCode, const QString& characters);

/// The modifiers' symbols in list order and the key's name, without separators. Unknown modifier
/// names are left out.
QString combinationSymbols(const QStringList& modifiers, const QString& key);

} // namespace velmora::CapturedKey

#include "model/StoredList.h"

#include "foundation/Log.h"

using namespace Qt::StringLiterals;

namespace velmora {

void keepUnreadable(
    UserDefaults& defaults, const QString& key, const QByteArray& bytes,
    const DecodingError& error) {
    QString copyKey = key + u".unreadable"_s;
    for (int number = 2; const auto kept = defaults.data(copyKey); ++number) {
        if (kept == bytes)
            return;
        copyKey = key + u".unreadable-%1"_s.arg(number);
    }
    defaults.setData(copyKey, bytes);
    const QString path = (QStringList(key) << error.codingPath).join(u'/');
    Log::write(u"⚠️ %1: %2 It is kept as %3."_s.arg(path, error.description, copyKey));
}

} // namespace velmora

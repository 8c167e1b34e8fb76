#include "model/StoredList.h"

#include "foundation/LocalizedString.h"
#include "foundation/Log.h"

using namespace Qt::StringLiterals;

namespace velmora {

void keepAside(
    UserDefaults& defaults, const QString& key, const QByteArray& bytes,
    const DecodingError* error) {
    const QString plainKey = key + (error ? u".unreadable"_s : u".replaced"_s);
    QString copyKey = plainKey;
    for (int number = 2; const auto kept = defaults.data(copyKey); ++number) {
        if (kept == bytes)
            return;
        copyKey = plainKey + u"-%1"_s.arg(number);
    }
    defaults.setData(copyKey, bytes);
    const QString path =
        (QStringList(key) << (error ? error->codingPath : QStringList())).join(u'/');
    const QString why =
        error ? error->description : u"Another program has written the list meanwhile."_s;
    Log::write(u"⚠️ %1: %2 It is kept as %3."_s.arg(path, why, copyKey));
}

QString editName(EditKind kind, const QString& title) {
    switch (kind) {
    case EditKind::add:
        return localizedString("edit_add_format").arg(title);
    case EditKind::remove:
        return localizedString("edit_remove_format").arg(title);
    case EditKind::change:
        return localizedString("edit_change_format").arg(title);
    case EditKind::move:
        return localizedString("edit_move_format").arg(title);
    }
    return {};
}

} // namespace velmora

#include "settings/Exchange.h"

#include "foundation/LocalizedString.h"
#include "foundation/RegularFile.h"
#include "input/MouseButtonManager.h"
#include "model/ShortcutManager.h"

#include <cerrno>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr qint64 sizeLimit = 64 * 1024 * 1024; // bytes

Setup sharedSetup() {
    return {
        ShortcutManager::shared().shortcuts(), MouseButtonManager::shared().bindings(),
        Preferences::shared().values()};
}

void takeShared(const Setup& setup) {
    const QString name = localizedString("edit_import");
    EditHistory& history = EditHistory::shared();
    history.group(name, [&] {
        ShortcutManager::shared().replaceShortcuts(setup.buttons, name);
        MouseButtonManager::shared().replaceBindings(setup.mouseBindings, name);
        Preferences& preferences = Preferences::shared();
        const auto take = [&preferences](const PreferenceValues& values) {
            return [&preferences, values] { preferences.take(values); };
        };
        history.record({name, {}, take(preferences.values()), take(setup.preferences)});
        preferences.take(setup.preferences);
    });
}

} // namespace

Exchange& Exchange::shared() {
    static auto* instance = new Exchange(sharedSetup, takeShared);
    return *instance;
}

QString Exchange::exportTo(const QString& path) const {
    try {
        RegularFile::replace(path, encodedSetup(current_()));
        return {};
    } catch (const FileError& error) {
        return u"%1: %2"_s.arg(path, error.reason);
    }
}

QString Exchange::importFrom(const QString& path) const {
    try {
        const auto contents = RegularFile::read(path, sizeLimit);
        if (!contents)
            throw FileError(ENOENT);
        const auto setup = decodedSetup(contents->bytes);
        if (const auto* error = std::get_if<DecodingError>(&setup)) {
            QStringList parts{path, error->codingPath.join(u'/'), error->description};
            parts.removeAll(QString()); // the whole text has no path
            return parts.join(u": "_s);
        }
        take_(std::get<Setup>(setup));
        return {};
    } catch (const FileError& error) {
        return u"%1: %2"_s.arg(path, error.reason);
    }
}

} // namespace velmora

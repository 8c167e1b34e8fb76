#include "platform/freedesktop/DesktopEntryListing.h"

#include "foundation/RegularFile.h"
#include "platform/freedesktop/DesktopEntryFile.h"

#include <QFile>
#include <QHash>
#include <QSet>
#include <QStandardPaths>
#include <filesystem>
#include <set>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace velmora {
namespace {

/// Bytes of an entry; translated entries of large programs come near a tenth of it.
constexpr qint64 sizeLimit = qint64{1024} * 1024;

QByteArrayList localesOfSession() {
    QByteArray locale;
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        locale = qgetenv(name);
        if (!locale.isEmpty())
            break;
    }
    if (locale.isEmpty() || locale == "C" || locale == "POSIX")
        return {}; // LANGUAGE counts only beside a locale
    return qgetenv("LANGUAGE").split(':') << locale;
}

bool isProgram(const QByteArray& path) {
    struct stat status {};
    return ::access(path.constData(), X_OK) == 0 && ::stat(path.constData(), &status) == 0 &&
           S_ISREG(status.st_mode);
}

/// One run of the listing.
class Walk {
public:
    explicit Walk(const DesktopEntryListing& listing) : listing_(listing) {}

    QList<InstalledApplication> result;

    /// Lists one base folder with its sub-folders. Links to folders are followed, each folder is
    /// visited once.
    void addBase(const fs::path& base) {
        std::set<std::pair<dev_t, ino_t>> visited;
        std::vector<std::pair<fs::path, QString>> pending{{base, QString()}};
        while (!pending.empty()) {
            const auto [folder, prefix] = std::move(pending.back());
            pending.pop_back();
            struct stat status {};
            if (::stat(folder.c_str(), &status) != 0 ||
                !visited.emplace(status.st_dev, status.st_ino).second)
                continue;
            std::error_code error;
            for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
                 entry.increment(error)) {
                const fs::path& path = entry->path();
                const std::string_view file =
                    std::string_view(path.native()).substr(path.native().rfind('/') + 1);
                std::error_code ignored;
                if (file.ends_with(".desktop")) {
                    const auto stem = file.substr(0, file.size() - 8);
                    addEntry(path, prefix + QString::fromUtf8(stem.data(), qsizetype(stem.size())));
                } else if (entry->is_directory(ignored)) {
                    pending.emplace_back(
                        path,
                        prefix + QString::fromUtf8(file.data(), qsizetype(file.size())) + u'-');
                }
            }
        }
    }

private:
    void addEntry(const fs::path& path, const QString& identifier) {
        if (seen_.contains(identifier))
            return;
        seen_.insert(identifier);
        const QString location = QFile::decodeName(path.c_str());
        const auto text = RegularFile::bytes(location, sizeLimit);
        if (!text)
            return;
        auto entry = DesktopEntryFile::parse(std::string_view(*text), listing_.languages);
        if (!entry || entry->hidden || !entry->isShownIn(listing_.desktops) ||
            !canRun(entry->tryExec))
            return;
        result.append(
            {.identifier = identifier,
             .name = std::move(entry->name),
             .location = location,
             .icon = std::move(entry->icon)});
    }

    bool canRun(const QString& tryExec) {
        if (tryExec.isEmpty())
            return true;
        const auto known = programs_.constFind(tryExec);
        if (known != programs_.cend())
            return *known;
        const QByteArray name = QFile::encodeName(tryExec);
        bool found = false;
        if (name.startsWith('/')) {
            found = isProgram(name);
        } else {
            for (const QString& folder : listing_.searchPath)
                found = found || isProgram(QFile::encodeName(folder) + '/' + name);
        }
        programs_.insert(tryExec, found);
        return found;
    }

    const DesktopEntryListing& listing_;
    QSet<QString> seen_;
    QHash<QString, bool> programs_;
};

} // namespace

DesktopEntryListing DesktopEntryListing::ofSession() {
    return {
        .folders = QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation),
        .languages = localizedKeyLanguages(localesOfSession()),
        .desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':', Qt::SkipEmptyParts),
        .searchPath = qEnvironmentVariable("PATH").split(u':', Qt::SkipEmptyParts),
    };
}

QList<InstalledApplication> DesktopEntryListing::applications() const {
    Walk walk(*this);
    for (const QString& folder : folders)
        walk.addBase(fs::path(QFile::encodeName(folder).toStdString()));
    return walk.result;
}

} // namespace velmora

#include "settings/applications/AppScanner.h"

#include "foundation/RegularFile.h"
#include "platform/Session.h"
#include "settings/applications/PropertyList.h"

#include <QCollator>
#include <QDir>
#include <QFile>
#include <QSet>
#include <algorithm>
#include <ranges>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace velmora {
namespace {

/// Bytes of an information dictionary; real ones stay far below.
constexpr qint64 sizeLimit = qint64{1024} * 1024;

const QSet<QString> popularBundleIds = {
    u"com.apple.Safari"_s,        u"com.apple.finder"_s,
    u"com.apple.mail"_s,          u"com.apple.iCal"_s,
    u"com.apple.MobileSMS"_s,     u"com.apple.Music"_s,
    u"com.apple.Photos"_s,        u"com.apple.TV"_s,
    u"com.apple.Terminal"_s,      u"com.apple.Notes"_s,
    u"com.apple.reminders"_s,     u"com.apple.Maps"_s,
    u"com.apple.iWork.Pages"_s,   u"com.apple.iWork.Numbers"_s,
    u"com.apple.iWork.Keynote"_s, u"com.google.Chrome"_s,
    u"com.microsoft.VSCode"_s,    u"com.sublimetext.4"_s,
    u"com.github.atom"_s,         u"org.mozilla.firefox"_s,
};

/// The information dictionary of a bundle: of the usual layout, or of the flat one.
fs::path informationDictionary(const fs::path& bundle) {
    std::error_code ignored;
    const fs::path contents = bundle / "Contents";
    return (fs::is_directory(contents, ignored) ? contents : bundle) / "Info.plist";
}

std::optional<AppInfo> getAppInfo(const fs::path& bundle) {
    const auto bytes =
        RegularFile::bytes(QFile::decodeName(informationDictionary(bundle).c_str()), sizeLimit);
    if (!bytes)
        return {};
    const QString identifierKey = u"CFBundleIdentifier"_s;
    const QString nameKey = u"CFBundleName"_s;
    const auto information = propertyListStrings(*bytes, {identifierKey, nameKey});
    const QString identifier = information.value(identifierKey);
    if (identifier.isEmpty() || !information.contains(nameKey))
        return {};
    return AppInfo(information.value(nameKey), identifier, QFile::decodeName(bundle.c_str()));
}

/// A folder whose content is nobody's business but its own.
bool isPackage(const fs::path& folder) {
    std::error_code ignored;
    return fs::exists(folder / "Contents/Info.plist", ignored);
}

/// Appends the applications in `folder` and its ordinary sub-folders, in the order of their names.
/// Links to folders are not followed.
void appendApplications(const fs::path& folder, QList<AppInfo>& apps, const std::stop_token& stop) {
    std::vector<fs::path> pending{folder};
    while (!pending.empty() && !stop.stop_requested()) {
        const fs::path path = std::move(pending.back());
        pending.pop_back();
        if (path != folder && path.extension() == ".app") {
            if (auto app = getAppInfo(path))
                apps.append(std::move(*app));
            continue;
        }
        if (path != folder && isPackage(path))
            continue;
        std::vector<fs::path> found;
        std::error_code error;
        for (fs::directory_iterator entry(path, error), end; !error && entry != end;
             entry.increment(error)) {
            const std::string& text = entry->path().native();
            if (text[text.rfind('/') + 1] == '.')
                continue;
            std::error_code ignored;
            const bool descends = !entry->is_symlink(ignored) && entry->is_directory(ignored);
            if (descends || text.ends_with(".app"))
                found.push_back(entry->path());
        }
        std::ranges::sort(found, std::ranges::greater()); // the last one is taken first
        std::ranges::move(found, std::back_inserter(pending));
    }
}

/// The locale that orders names; "C" says nothing about a language.
QLocale orderingLocale() {
    const QLocale locale;
    return locale.language() == QLocale::C ? QLocale(QLocale::English) : locale;
}

void sortByName(QList<AppInfo>& apps) {
    QCollator collator(orderingLocale());
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<std::pair<QCollatorSortKey, qsizetype>> keys;
    keys.reserve(std::size_t(apps.size()));
    for (qsizetype i = 0; i < apps.size(); ++i)
        keys.emplace_back(collator.sortKey(apps[i].name), i);
    std::ranges::stable_sort(
        keys, [](const auto& a, const auto& b) { return a.first.compare(b.first) < 0; });
    QList<AppInfo> sorted;
    sorted.reserve(apps.size());
    for (const auto& [key, index] : keys)
        sorted.append(std::move(apps[index]));
    apps = std::move(sorted);
}

} // namespace

const AppScanner& AppScanner::shared() {
    static const auto* instance = new AppScanner(
        {.folders =
             {u"/Applications"_s, u"/System/Applications"_s, QDir::homePath() + u"/Applications"_s},
         .finder = u"/System/Library/CoreServices/Finder.app"_s,
         .installed = [workspace = &Session::current().workspace()] {
             return workspace->installedApplications();
         }});
    return *instance;
}

QList<AppInfo> AppScanner::getInstalledApps(const std::stop_token& stop) const {
    QList<AppInfo> apps;
    for (const QString& folder : sources_.folders)
        appendApplications(QFile::encodeName(folder).toStdString(), apps, stop);
    if (stop.stop_requested())
        return apps;
    if (auto finder = getAppInfo(QFile::encodeName(sources_.finder).toStdString());
        finder && !apps.contains(*finder))
        apps.append(std::move(*finder));
    if (sources_.installed) {
        for (InstalledApplication& app : sources_.installed())
            apps.append(AppInfo(
                std::move(app.name), std::move(app.identifier), std::move(app.location),
                std::move(app.icon)));
    }
    sortByName(apps);
    return apps;
}

QList<AppInfo> AppScanner::getCommonApps() const {
    QList<AppInfo> apps = getInstalledApps();
    apps.removeIf([](const AppInfo& app) { return !popularBundleIds.contains(app.bundleId); });
    return apps;
}

} // namespace velmora

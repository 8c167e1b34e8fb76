#include "platform/gio/GioWorkspace.h"

#include "foundation/MainQueue.h"
#include "platform/freedesktop/ApplicationRoles.h"
#include "platform/freedesktop/DesktopEntryListing.h"
#include "platform/gio/DesktopLaunch.h"
#include "platform/gio/GioPointer.h"

#include <QFile>
#include <QThread>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr auto suffix = ".desktop"_L1;

/// Adds where `entry`, which may be null, is stored.
void append(QStringList& locations, GDesktopAppInfo* entry) {
    const char* filename = entry ? g_desktop_app_info_get_filename(entry) : nullptr;
    const QString location = QFile::decodeName(filename);
    if (!location.isEmpty() && !locations.contains(location))
        locations.append(location);
}

/// Adds the entry with that id, unless it is hidden or its program is missing.
void appendEntry(QStringList& locations, const QString& id) {
    const GioPointer<GDesktopAppInfo> entry(g_desktop_app_info_new(id.toUtf8().constData()));
    append(locations, entry.get());
}

void appendDefaultHandler(QStringList& locations, QLatin1StringView type) {
    const GioPointer<GAppInfo> handler(g_app_info_get_default_for_type(type.data(), FALSE));
    append(locations, handler ? G_DESKTOP_APP_INFO(handler.get()) : nullptr);
}

/// Runs `task` on a thread of its own. A launch may wait long for an application to answer on the
/// bus, so launches do not queue for a pool.
void runAside(std::function<void()> task) {
    QThread* thread = QThread::create(std::move(task));
    QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->start();
}

} // namespace

std::optional<QString> GioWorkspace::applicationLocation(const QString& identifier) const {
    const QStringList locations = applicationLocations(identifier);
    return locations.isEmpty() ? std::nullopt : std::optional(locations.first());
}

QStringList GioWorkspace::applicationLocations(const QString& identifier) const {
    QStringList locations;
    if (identifier.isEmpty())
        return locations;
    appendEntry(locations, identifier + suffix);
    if (identifier.endsWith(suffix))
        appendEntry(locations, identifier);
    for (const QLatin1StringView substitute : applicationRole(identifier)) {
        if (substitute.contains(u'/'))
            appendDefaultHandler(locations, substitute);
        else
            appendEntry(locations, substitute + suffix);
    }
    return locations;
}

QList<InstalledApplication> GioWorkspace::installedApplications() const {
    return DesktopEntryListing::ofSession().applications();
}

void GioWorkspace::openApplication(
    const QString& location, const OpenConfiguration&, OpenCompletion completion) {
    runAside([location, completion = std::move(completion)] {
        MainQueue::submit([completion, failure = DesktopLaunch::openApplication(location)] {
            completion(failure);
        });
    });
}

bool GioWorkspace::openUrl(const QUrl& url) {
    if (url.isRelative())
        return false;
    runAside([text = url.toEncoded()] { DesktopLaunch::openUrl(text); });
    return true;
}

} // namespace velmora

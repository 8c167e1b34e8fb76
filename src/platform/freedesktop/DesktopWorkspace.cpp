#include "platform/freedesktop/DesktopWorkspace.h"

#include "foundation/MainQueue.h"
#include "platform/freedesktop/ApplicationRoles.h"
#include "platform/freedesktop/DesktopEntryListing.h"
#include "platform/freedesktop/Gio.h"

#include <QThread>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr auto suffix = ".desktop"_L1;

/// Runs `task` on a thread of its own. A launch may wait long for an application to answer on the
/// bus, so launches do not queue for a pool.
void runAside(std::function<void()> task) {
    QThread* thread = QThread::create(std::move(task));
    QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->start();
}

} // namespace

std::optional<QString> DesktopWorkspace::applicationLocation(const QString& identifier) const {
    const QStringList locations = applicationLocations(identifier);
    return locations.isEmpty() ? std::nullopt : std::optional(locations.first());
}

QStringList DesktopWorkspace::applicationLocations(const QString& identifier) const {
    if (identifier.isEmpty() || !gio())
        return {};
    QStringList locations;
    const auto append = [&](const QString& location) {
        if (!location.isEmpty() && !locations.contains(location))
            locations.append(location);
    };
    append(gio()->entryLocation((identifier + suffix).toUtf8()));
    if (identifier.endsWith(suffix))
        append(gio()->entryLocation(identifier.toUtf8()));
    for (const QLatin1StringView substitute : applicationRole(identifier))
        append(
            substitute.contains(u'/')
                ? gio()->defaultHandlerLocation(QByteArray(substitute.data(), substitute.size()))
                : gio()->entryLocation((substitute + suffix).toUtf8()));
    return locations;
}

QList<InstalledApplication> DesktopWorkspace::installedApplications() const {
    return DesktopEntryListing::ofSession().applications();
}

void DesktopWorkspace::openApplication(
    const QString& location, const OpenConfiguration&, OpenCompletion completion) {
    runAside([location, completion = std::move(completion)] {
        const auto failure = gio() ? gio()->openApplication(location) : u"no GIO"_s;
        MainQueue::submit([completion, failure] { completion(failure); });
    });
}

bool DesktopWorkspace::openUrl(const QUrl& url) {
    if (url.isRelative() || !gio())
        return false;
    runAside([text = url.toEncoded()] { gio()->openUrl(text); });
    return true;
}

} // namespace velmora

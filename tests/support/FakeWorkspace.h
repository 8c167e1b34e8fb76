#pragma once

#include "platform/Workspace.h"

#include <QHash>
#include <QList>
#include <utility>

namespace velmora::test {

/// A workspace of made-up applications that records what it is asked.
class FakeWorkspace : public Workspace {
public:
    /// Locations by identifier.
    QHash<QString, QStringList> installed;
    /// What completes the launch of a location with an error, by location.
    QHash<QString, QString> launchErrors;

    mutable QStringList lookups; ///< identifiers, in the order asked
    QStringList opened;          ///< locations
    QList<QUrl> openedUrls;

    std::optional<QString> applicationLocation(const QString& identifier) const override {
        lookups.append(identifier);
        const QStringList locations = installed.value(identifier);
        return locations.isEmpty() ? std::nullopt : std::optional(locations.first());
    }

    QStringList applicationLocations(const QString& identifier) const override {
        lookups.append(identifier);
        return installed.value(identifier);
    }

    QList<InstalledApplication> installedApplications() const override { return {}; }

    void openApplication(
        const QString& location, const OpenConfiguration&, OpenCompletion completion) override {
        opened.append(location);
        const auto error = launchErrors.constFind(location);
        pending_.append([completion = std::move(completion),
                         failure = error == launchErrors.constEnd()
                                       ? std::nullopt
                                       : std::optional(*error)] { completion(failure); });
    }

    bool openUrl(const QUrl& url) override {
        openedUrls.append(url);
        return false;
    }

    /// Lets the completions of all launches so far arrive.
    void completeLaunches() {
        for (const auto& complete : std::exchange(pending_, {}))
            complete();
    }

private:
    QList<std::function<void()>> pending_;
};

} // namespace velmora::test

#pragma once

#include "platform/Appearance.h"
#include "platform/Workspace.h"

/// The services over GIO, from a module that is loaded when one is first used: GIO and what it
/// needs are a tenth of the work of a start, and no part of what the bar shows.
namespace velmora {

/// Loads the module now, when it is not loaded yet. From any thread. A module that is missing or
/// belongs to another version is logged once; the services then do nothing and find nothing.
void loadGio();

class LateAppearance : public Appearance {
public:
    void observe(Handler handler) override;
};

class LateWorkspace : public Workspace {
public:
    std::optional<QString> applicationLocation(const QString& identifier) const override;
    QStringList applicationLocations(const QString& identifier) const override;
    QList<InstalledApplication> installedApplications() const override;
    void openApplication(
        const QString& location, const OpenConfiguration& configuration,
        OpenCompletion completion) override;
    bool openUrl(const QUrl& url) override;
};

} // namespace velmora

#pragma once

#include "platform/Workspace.h"

namespace velmora {

/// The workspace over desktop entries and default handlers. An identifier is the id of a desktop
/// entry, with or without ".desktop", or else that of a well-known application for which a
/// substitute is found (applicationRole). Without GIO there is nothing but the list.
class DesktopWorkspace : public Workspace {
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

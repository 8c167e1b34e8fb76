#pragma once

#include "platform/Workspace.h"

namespace velmora {

/// The workspace over desktop entries and default handlers, by way of GIO. An identifier is the id
/// of a desktop entry, with or without ".desktop", or else that of a well-known application for
/// which a substitute is found (applicationRole). Changes of entries and handlers made while the
/// program runs are noticed.
class GioWorkspace : public Workspace {
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

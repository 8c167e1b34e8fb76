#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <functional>
#include <optional>

namespace velmora {

/// How an application is opened; the default has nothing to set.
struct OpenConfiguration {};

/// One application that the session offers to its user.
struct InstalledApplication {
    QString identifier; ///< what applicationLocation() takes
    QString name;       ///< in the user's language
    QString location;
    QString icon; ///< a name of the icon theme or an absolute path; empty without one
};

/// The installed applications and default handlers of the session (NSWorkspace).
class Workspace {
public:
    virtual ~Workspace() = default;

    /// URLForApplicationWithBundleIdentifier: the location (full path of a desktop entry or an
    /// ".app" folder) of the application with that identifier, if it is installed.
    virtual std::optional<QString> applicationLocation(const QString& identifier) const = 0;

    /// URLsForApplicationsWithBundleIdentifier: every location registered under the identifier,
    /// in order of precedence.
    virtual QStringList applicationLocations(const QString& identifier) const = 0;

    /// The applications that the session lists beside ".app" folders, in no particular order, each
    /// identifier once. Reads the disk; callable from any thread.
    virtual QList<InstalledApplication> installedApplications() const = 0;

    /// Called with nothing when the application runs, else with a description of what failed.
    using OpenCompletion = std::function<void(std::optional<QString> error)>;

    /// Starts or activates the application at `location`, asynchronously; it outlives this process.
    /// `completion` is called once, on the main thread.
    virtual void openApplication(
        const QString& location, const OpenConfiguration& configuration,
        OpenCompletion completion) = 0;

    /// Asks the session to open `url` with its default handler, without waiting. False when the
    /// request could not be made.
    virtual bool openUrl(const QUrl& url) = 0;
};

} // namespace velmora

#pragma once

#include "platform/Workspace.h"
#include "settings/applications/AppInfo.h"

#include <QList>
#include <filesystem>
#include <functional>
#include <stop_token>

namespace velmora {

/// Finds the installed applications. A value that keeps nothing between calls: copies may scan on
/// any thread at the same time.
class AppScanner {
public:
    /// Where to look.
    struct Sources {
        QStringList folders; ///< walked for ".app" folders
        QString finder;      ///< one more ".app" folder
        /// What the session lists by itself; may be empty. Called on the scanning thread.
        std::function<QList<InstalledApplication>()> installed;
    };

    /// The process-wide scanner of the usual folders and the current platform, never destroyed.
    static const AppScanner& shared();

    explicit AppScanner(Sources sources) : sources_(std::move(sources)) {}

    /// All applications, ordered by name as the user's language orders, ignoring case; equal names
    /// stay in the order found. An application in two folders is listed twice. Reads the disk: call
    /// off the main thread. Ends soon after `stop` was requested, with any part of the list.
    QList<AppInfo> getInstalledApps(const std::stop_token& stop = {}) const;

    /// The popular ones among getInstalledApps(), in its order.
    QList<AppInfo> getCommonApps() const;

private:
    Sources sources_;
};

} // namespace velmora

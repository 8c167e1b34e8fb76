#pragma once

#include "platform/Workspace.h"

#include <QByteArrayList>

namespace velmora {

/// Lists the desktop entries that a session shows as applications. It reads only the keys it needs:
/// reading whole entries takes ten times as long. Thread-safe; a value that keeps nothing between
/// calls.
struct DesktopEntryListing {
    QStringList folders;      ///< "applications" folders, first found wins
    QByteArrayList languages; ///< as localizedKeyLanguages() gives them
    QStringList desktops;     ///< the names of the running desktop
    QStringList searchPath;   ///< folders of programs, for TryExec

    /// The listing that the process's environment asks for.
    static DesktopEntryListing ofSession();

    /// The entries to show, in the order found. An entry hides those of the same identifier behind
    /// it, also when it is itself hidden or broken. Identifiers are without the suffix ".desktop";
    /// that of an entry in a sub-folder is "folder-name".
    QList<InstalledApplication> applications() const;
};

} // namespace velmora

#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/// Starting applications. These calls wait for the session bus and the file system: run them beside
/// the main thread. What they start outlives this process and is no child of it. They give nothing,
/// or a description of what failed.
namespace velmora::DesktopLaunch {

/// Starts or activates the application whose desktop entry is the file at `location`.
std::optional<QString> openApplication(const QString& location);

/// Opens the percent-encoded `url` with the default handler of its scheme or, for a file, its type.
std::optional<QString> openUrl(const QByteArray& url);

} // namespace velmora::DesktopLaunch

#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/// Starting applications, as GioModule describes it.
namespace velmora::DesktopLaunch {

std::optional<QString> openApplication(const QString& location);
std::optional<QString> openUrl(const QByteArray& url);

} // namespace velmora::DesktopLaunch

#pragma once

#include <QString>
#include <QVariantMap>
#include <optional>

/// What ships with the program: resources beside the executable and its version.
namespace velmora::Bundle {

/// Folder that holds the program's resources (the "icon" folder, …), without a trailing slash.
/// Beside the executable in a build tree, "../share/velmora" when installed; absent when neither
/// exists.
std::optional<QString> resourcePath();

/// Full path of "<name>.<type>" in `directory` below the resource path, if such a file exists.
std::optional<QString> path(const QString& name, const QString& type, const QString& directory);

/// Folder that holds the program itself.
QString bundlePath();

/// The information dictionary: the keys below, both strings. Absent when there is none.
std::optional<QVariantMap> infoDictionary();

/// "0.1.0".
inline constexpr QLatin1StringView shortVersionKey("CFBundleShortVersionString");
/// The build of that version.
inline constexpr QLatin1StringView versionKey("CFBundleVersion");

/// Folder of the program's private helper commands, absent when it does not exist.
std::optional<QString> helperPath();

} // namespace velmora::Bundle

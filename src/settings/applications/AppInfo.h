#pragma once

#include <QIcon>
#include <QString>
#include <QUuid>

namespace velmora {

/// An installed application. Two are equal when their bundle identifiers are.
struct AppInfo {
    QUuid id; ///< fresh for every record
    QString name;
    QString bundleId;
    QString path;     ///< full path of the ".app" folder or the desktop entry
    QString iconName; ///< a name of the icon theme or an absolute path; may be empty

    AppInfo(QString appName, QString identifier, QString location, QString icon = {})
        : id(QUuid::createUuid()),
          name(std::move(appName)),
          bundleId(std::move(identifier)),
          path(std::move(location)),
          iconName(std::move(icon)) {}

    /// The application's icon as the theme has it, null when the theme has none; a picture in a
    /// file of its own is AppIcons' to read. Main thread only; opens no picture.
    QIcon getIcon() const {
        // A name with a slash would lead out of the theme's folders.
        return iconName.isEmpty() || iconName.contains(u'/') ? QIcon() : QIcon::fromTheme(iconName);
    }

    bool operator==(const AppInfo& other) const { return bundleId == other.bundleId; }
};

} // namespace velmora

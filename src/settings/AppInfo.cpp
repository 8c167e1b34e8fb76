#include "settings/AppInfo.h"

#include <QDir>
#include <QImageReader>

namespace velmora {
namespace {

/// Side in pixels up to which decoding a picture goes unnoticed on the main thread.
constexpr int largestSide = 1024;

} // namespace

QIcon AppInfo::getIcon() const {
    if (iconName.isEmpty())
        return {};
    if (QDir::isRelativePath(iconName))
        return QIcon::fromTheme(iconName);
    const QSize size = QImageReader(iconName).size();
    if (size.isEmpty() || size.width() > largestSide || size.height() > largestSide)
        return {};
    return QIcon(iconName);
}

} // namespace velmora

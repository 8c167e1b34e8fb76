#include "settings/AppInfo.h"

namespace velmora {

QIcon AppInfo::getIcon() const {
    // A name with a slash would lead out of the theme's folders.
    return iconName.isEmpty() || iconName.contains(u'/') ? QIcon() : QIcon::fromTheme(iconName);
}

} // namespace velmora

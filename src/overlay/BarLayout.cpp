#include "overlay/BarLayout.h"

#include <algorithm>

namespace velmora {

QList<ShortcutButton>
BarLayout::group(const QList<ShortcutButton>& shortcuts, ButtonAlignment side) {
    QList<ShortcutButton> members;
    std::copy_if(
        shortcuts.begin(), shortcuts.end(), std::back_inserter(members),
        [side](const ShortcutButton& button) { return button.alignment == side; });
    return members;
}

} // namespace velmora

#include "platform/x11/screens/SafeAreaInsets.h"

namespace velmora {

std::optional<QMargins> statedInsets(const std::vector<std::uint32_t>& values, QSize screenSize) {
    if (values.size() != 4)
        return {};
    const std::uint64_t top = values[0], left = values[1], bottom = values[2], right = values[3];
    if (top + bottom >= static_cast<std::uint64_t>(screenSize.height()) ||
        left + right >= static_cast<std::uint64_t>(screenSize.width()))
        return {};
    return QMargins(
        static_cast<int>(left), static_cast<int>(top), static_cast<int>(right),
        static_cast<int>(bottom));
}

} // namespace velmora

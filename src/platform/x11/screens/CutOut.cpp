#include "platform/x11/screens/CutOut.h"

#include <QList>
#include <algorithm>
#include <array>

namespace velmora {
namespace {

/// A family of machines of one panel. The cut-out's height is that of the rows which the panel has
/// above its 16:10 area.
struct NotchedLaptop {
    const char* name; ///< the device tree's, without the letter that tells the chip variant
    QSize modeWithNotchRows;
    int cutoutHeight;
};

constexpr QSize kPro14(3024, 1964);
constexpr QSize kPro16(3456, 2234);
constexpr QSize kAir13(2560, 1664);
constexpr QSize kAir15(2880, 1864);

constexpr std::array kNotchedLaptops{
    NotchedLaptop{"apple,j314", kPro14, 74}, // M1 Pro, M1 Max
    NotchedLaptop{"apple,j316", kPro16, 74},
    NotchedLaptop{"apple,j414", kPro14, 74}, // M2 Pro, M2 Max
    NotchedLaptop{"apple,j416", kPro16, 74},
    NotchedLaptop{"apple,j514", kPro14, 74}, // M3 Pro, M3 Max
    NotchedLaptop{"apple,j516", kPro16, 74},
    NotchedLaptop{"apple,j413", kAir13, 64}, // M2
    NotchedLaptop{"apple,j415", kAir15, 64},
    NotchedLaptop{"apple,j613", kAir13, 64}, // M3
    NotchedLaptop{"apple,j615", kAir15, 64},
};

/// Whether `name` is the family's, with or without the letter of the chip variant ("j314s").
bool isOf(const QByteArray& name, const NotchedLaptop& laptop) {
    const auto family = QByteArrayView(laptop.name);
    if (!name.startsWith(family))
        return false;
    const auto rest = QByteArrayView(name).sliced(family.size());
    return rest.isEmpty() || (rest.size() == 1 && rest.front() >= 'a' && rest.front() <= 'z');
}

} // namespace

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

int knownCutoutHeight(const QByteArray& compatible, QSize mode) {
    const QList<QByteArray> names = compatible.split('\0');
    const auto known =
        std::find_if(kNotchedLaptops.begin(), kNotchedLaptops.end(), [&](const auto& laptop) {
            return laptop.modeWithNotchRows == mode &&
                   std::any_of(names.begin(), names.end(), [&](const QByteArray& name) {
                       return isOf(name, laptop);
                   });
        });
    return known == kNotchedLaptops.end() ? 0 : known->cutoutHeight;
}

} // namespace velmora

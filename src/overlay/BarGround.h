#pragma once

#include <QColor>

namespace velmora {

/// The colour of the bar's ground at `place`: 0 is its left end, 1 its right end.
inline QColor barGround(double place) {
    const auto light = static_cast<float>(place);
    return QColor::fromRgbF(0.1F * light, 0.1F * light, 0.15F * light, 0.85F);
}

} // namespace velmora

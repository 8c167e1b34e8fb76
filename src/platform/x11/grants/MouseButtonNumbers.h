#pragma once

#include <cstdint>
#include <optional>

/// Mouse buttons are counted from 0 (left, right, middle, fourth, …) above this room; the X server
/// counts from 1 and keeps 4 to 7 for the wheels.
namespace velmora {

/// The X button of a tappable button: nothing for left, right and what X has no number for.
constexpr std::optional<std::uint8_t> xButtonFromNumber(std::int64_t number) {
    if (number == 2)
        return std::uint8_t(2);
    if (number < 3 || number > 250)
        return std::nullopt;
    return static_cast<std::uint8_t>(number + 5);
}

/// The reverse, for buttons that xButtonFromNumber() gives.
constexpr std::int64_t numberFromXButton(std::uint8_t button) {
    return button == 2 ? 2 : button - 5;
}

} // namespace velmora

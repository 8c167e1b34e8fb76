#pragma once

#include <QMargins>
#include <QSize>
#include <cstdint>
#include <optional>
#include <vector>

namespace velmora {

/// The insets that a property states, in pixels. `values` are its numbers: top, left, bottom,
/// right. Nothing when they are not four, or leave no room on a screen of `screenSize` pixels: a
/// wrong setting must not make a bar as tall as the screen.
std::optional<QMargins> statedInsets(const std::vector<std::uint32_t>& values, QSize screenSize);

} // namespace velmora

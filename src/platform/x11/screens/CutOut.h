#pragma once

#include <QByteArray>
#include <QMargins>
#include <QSize>
#include <cstdint>
#include <optional>
#include <vector>

/// What is known of the place that a display's cut-out takes.
namespace velmora {

/// The insets that a property states, in pixels. `values` are its numbers: top, left, bottom,
/// right. Nothing when they are not four, or leave no room on a screen of `screenSize` pixels: a
/// wrong setting must not make a bar as tall as the screen.
std::optional<QMargins> statedInsets(const std::vector<std::uint32_t>& values, QSize screenSize);

/// The height in pixels of the cut-out of a laptop known to have one, 0 for any other machine and
/// for modes that leave out the rows beside the cut-out. `compatible` is the device tree's list of
/// names, each ended by a NUL; `mode` the size in pixels of an unrotated screen.
int knownCutoutHeight(const QByteArray& compatible, QSize mode);

} // namespace velmora

#pragma once

#include <QByteArray>
#include <QSize>

namespace velmora {

/// The height in pixels of the cut-out of a laptop known to have one, 0 for any other machine and
/// for modes that leave out the rows beside the cut-out. `compatible` is the device tree's list of
/// names, each ended by a NUL; `mode` the size in pixels of an unrotated screen.
int knownCutoutHeight(const QByteArray& compatible, QSize mode);

} // namespace velmora

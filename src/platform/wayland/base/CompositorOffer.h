#pragma once

#include <QByteArray>
#include <QHash>
#include <cstdint>
#include <optional>

namespace velmora {

/// What a compositor offers: each interface by name, with its version.
using CompositorOffer = QHash<QByteArray, std::uint32_t>;

/// Asks the compositor that the environment names, over a connection that ends with this; nothing
/// when none answers. Needs no application object.
std::optional<CompositorOffer> askCompositor();

} // namespace velmora

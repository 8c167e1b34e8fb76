#pragma once

#include <QByteArray>
#include <QSize>
#include <cstdint>
#include <optional>
#include <vector>
#include <xcb/randr.h>

namespace velmora {

class X11Connection;

/// What RandR says of the primary output.
struct PrimaryOutput {
    xcb_randr_output_t output = 0;
    QSize size; ///< pixels, as turned
    bool upright = true;
};

/// The primary output; the first one that shows something when none is named primary. Nothing
/// without RandR or outputs.
std::optional<PrimaryOutput> readPrimaryOutput(X11Connection& connection);

/// The numbers of a CARDINAL property of `output`. Empty when there is no such property or it has
/// another type.
std::vector<std::uint32_t>
readOutputCardinals(X11Connection& connection, xcb_randr_output_t output, const QByteArray& name);

} // namespace velmora

#pragma once

#include "platform/gio/GioModule.h"

namespace velmora {

/// The module over GIO, loaded with the first call: GIO and what it needs are a tenth of the work
/// of a start, and no part of what the bar shows. Null when the module is missing or belongs to
/// another version, which is logged once. From any thread.
const GioModule* gio();

} // namespace velmora
